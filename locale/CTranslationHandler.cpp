#include "locale/CTranslationHandler.h"

#include "json/JsonReader.h"
#include "json/Values.h"
#include "platform/DevicePaths.h"
#include "platform/FileContent.h"

#include <QDebug>

namespace {

QString &instanceRoot()
{
    static QString root = DevicePaths().webRoot;
    return root;
}

} // namespace

CTranslationHandler::CTranslationHandler(const QString &guiRoot)
    : guiRoot(guiRoot)
{
}

CTranslationHandler &CTranslationHandler::instance()
{
    static auto *const handler = new CTranslationHandler(instanceRoot());
    return *handler;
}

void CTranslationHandler::setInstanceRoot(const QString &guiRoot)
{
    instanceRoot() = guiRoot;
}

bool CTranslationHandler::loadJsonMap(const QString &path, QVariantMap &target)
{
    QByteArray json = fileContent(path).value_or(QByteArray());
    json.truncate(int(qstrlen(json.constData()))); // a NUL byte ends the text
    const QVariant value = parseJson(json).value_or(QVariant());
    if (value.type() != QVariant::Map)
        return false;
    target = value.toMap();
    return true;
}

bool CTranslationHandler::loadTranslationMap(const QString &language)
{
    const QString path = QStringLiteral("%1/locales/%2/translation.json").arg(guiRoot, language);
    QVariantMap table;
    if (!loadJsonMap(path, table)) {
        qDebug().noquote()
            << "CTranslationHandler::loadTranslationMap => Loading translation map for"
            << QStringLiteral("\"%1\" failed \"%2\"").arg(language, path);
        return false;
    }
    // The web interface writes "DD.MM.YYYY", the toolkit "dd.MM.yyyy".
    const QString key = QStringLiteral("dateformat");
    QString format;
    if (table.value(key).type() == QVariant::String)
        format = table.value(key).toString();
    format.replace(QLatin1Char('D'), QLatin1Char('d')).replace(QLatin1Char('Y'), QLatin1Char('y'));
    table.insert(key, format);
    translationMaps.insert(language, table);
    return true;
}

QVariantMap CTranslationHandler::translationMap(const QString &language)
{
    if (!translationMaps.contains(language))
        loadTranslationMap(language);
    return translationMaps.value(language);
}

bool CTranslationHandler::loadDatabaseToGuiMap()
{
    return loadJsonMap(
        QStringLiteral("%1/locales/database_to_gui.json").arg(guiRoot), databaseToGui);
}

QVariantMap CTranslationHandler::databaseToGuiMap()
{
    if (databaseToGui.isEmpty())
        loadDatabaseToGuiMap();
    return databaseToGui;
}

QString translate(const QString &key)
{
    const QVariantMap table = CTranslationHandler::instance().translationMap(QStringLiteral("en"));
    const QString text = textOf(table.value(key));
    return text.isEmpty() ? key : text;
}
