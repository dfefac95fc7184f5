#include "check/FileFault.h"

#include "json/JsonReader.h"
#include "locale/CTranslationHandler.h"

#include <QFile>

namespace {

QString openingFault(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

QString contentFault(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray json = file.readAll();
    if (json.startsWith("\xef\xbb\xbf"))
        return QStringLiteral("it begins with a byte order mark; save it as UTF-8 without one");
    JsonFault fault;
    if (parseJson(json, &fault))
        return QStringLiteral("it is no JSON object");
    return fault.text();
}

} // namespace

QString fileFault(const DevicePaths &paths)
{
    const QString table = paths.webRoot + QLatin1String("/locales/en/translation.json");
    for (const QString &path : { paths.settingsScript, table }) {
        const QString fault = openingFault(path);
        if (!fault.isEmpty())
            return path + QLatin1String(": ") + fault;
    }
    QVariantMap texts;
    return CTranslationHandler::loadJsonMap(table, texts)
        ? QString()
        : table + QLatin1String(": ") + contentFault(table);
}
