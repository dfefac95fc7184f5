#include "check/FileFindings.h"

#include "check/Utf8Findings.h"
#include "json/JsonReader.h"
#include "locale/CTranslationHandler.h"

#include <QFile>

QString unreadableScript(const DevicePaths &paths)
{
    QFile file(paths.settingsScript);
    return file.open(QIODevice::ReadOnly)
        ? QString()
        : paths.settingsScript + QStringLiteral(": ") + file.errorString();
}

QString translationTable(const QString &webRoot)
{
    return webRoot + QStringLiteral("/locales/en/translation.json");
}

Findings tableFindings(const QString &path)
{
    constexpr const char *text = "%1; correct it, the console shows keys instead of texts";
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { error("translation-table", text, file.errorString()) };
    const QByteArray json = file.readAll();
    const Findings encoding = utf8Findings(json, QStringLiteral("the table"));
    QVariantMap texts;
    if (!encoding.isEmpty() || CTranslationHandler::loadJsonMap(path, texts))
        return encoding;
    if (json.startsWith("\xef\xbb\xbf"))
        return { error(
            "translation-table", text, QStringLiteral("it begins with a byte order mark")) };
    JsonFault fault;
    if (parseJson(json, &fault))
        return { error("translation-table", text, QStringLiteral("it is no JSON object")) };
    return { error("translation-table", text, fault.text()) };
}
