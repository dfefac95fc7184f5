#include "check/FileFindings.h"

#include "check/Utf8Findings.h"
#include "json/JsonReader.h"
#include "locale/CTranslationHandler.h"
#include "platform/FileContent.h"

QString unreadableScript(const DevicePaths &paths)
{
    QString fault;
    return fileContent(paths.settingsScript, &fault)
        ? QString()
        : paths.settingsScript + QStringLiteral(": ") + fault;
}

QString translationTable(const QString &webRoot)
{
    return webRoot + QStringLiteral("/locales/en/translation.json");
}

Findings tableFindings(const QString &path)
{
    constexpr const char *text = "%1; correct it, the console shows keys instead of texts";
    QString unreadable;
    const QByteArray json = fileContent(path, &unreadable).value_or(QByteArray());
    if (!unreadable.isEmpty())
        return { error("translation-table", text, unreadable) };
    const Findings encoding = utf8Findings(json, QStringLiteral("the table"));
    QVariantMap texts;
    if (!encoding.isEmpty() || CTranslationHandler::loadJsonMap(path, texts))
        return encoding;
    if (json.startsWith("\xef\xbb\xbf"))
        return { error(
            "translation-table", text, QStringLiteral("it begins with a byte order mark")) };
    QString fault;
    if (parseJson(json, &fault))
        return { error("translation-table", text, QStringLiteral("it is no JSON object")) };
    return { error("translation-table", text, fault) };
}
