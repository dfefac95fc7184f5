// The web interface's translation tables.
#pragma once

#include <QMap>
#include <QString>
#include <QVariantMap>

/// Loads the translation files below the web interface's root when they are first asked for and
/// keeps them for the life of the process. A file that could not be loaded is tried again at the
/// next request.
class CTranslationHandler {
public:
    explicit CTranslationHandler(const QString &guiRoot);

    /// The instance that `translate` uses; made at the first call, never destroyed.
    static CTranslationHandler &instance();

    /// Sets the root (no trailing slash) that the instance will be made with; without effect once
    /// it exists.
    static void setInstanceRoot(const QString &guiRoot);

    /// Replaces `target` by the JSON object in the file at `path`. False, and `target` unchanged,
    /// when the file cannot be read or holds anything else.
    static bool loadJsonMap(const QString &path, QVariantMap &target);

    /// Loads the table of `language` ("en"), its "dateformat" turned into the toolkit's notation.
    /// False, with a debug message, when it cannot be loaded.
    bool loadTranslationMap(const QString &language);

    /// The table of `language`; empty when it cannot be loaded.
    QVariantMap translationMap(const QString &language);

    /// Loads the map from database names to names of the web interface; false when it cannot be.
    bool loadDatabaseToGuiMap();

    /// The map from database names to names of the web interface; empty when it cannot be loaded.
    QVariantMap databaseToGuiMap();

private:
    QMap<QString, QVariantMap> translationMaps;
    QVariantMap databaseToGui;
    const QString guiRoot;
};

/// The English text of a translation key, or the key itself when the table has no text for it.
QString translate(const QString &key);
