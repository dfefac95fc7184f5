// The script engine with the menu definition, and the calls of the backend tool.
#pragma once

#include "platform/DevicePaths.h"

#include <QObject>
#include <QScriptEngine>
#include <QScriptValue>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <memory>

/// Runs the backend tool with arguments and returns what it printed on standard output.
using ToolRunner = std::function<QByteArray(const QStringList &)>;

/// Evaluates the web interface's settings script and runs the backend tool. The engine lives as
/// long as the helper; every script value handed out belongs to it.
class ScriptHelper : public QObject {
public:
    /// \name The menu definition (bodies in menu/ScriptHelper.cpp)
    /// @{
    /// `runTool` takes the place of running the tool at its path.
    explicit ScriptHelper(const DevicePaths &paths, ToolRunner runTool = {});

    /// Empty when the file cannot be read.
    QString settingsScript() const;

    /// Evaluates the settings script and returns the `settings` member of its global `Settings`.
    /// A script that fails gives its error object, after warnings with the properties of the error;
    /// a file that cannot be read counts as an empty script, which gives an invalid value.
    QScriptValue load();

    /// The version of the menu definition: "/" until a script was loaded without error.
    const QString &setupStructureVersion() const { return structureVersion; }

    QScriptEngine &scriptEngine() { return *engine; }
    /// @}

    /// \name Calls of the tool (bodies in backend/BackendCalls.cpp)
    /// @{
    /// What the tool prints on standard output. That it is missing, crashes or hangs shows only as
    /// missing output.
    QByteArray run(const QStringList &arguments) const;

    /// The list that the tool prints for `arguments`, empty when it fails. Unless `force` is set,
    /// the arguments of the read before are answered from memory without running the tool.
    QVariantList read(const QStringList &arguments, bool force);

    /// Appends the JSON text of `values` to `arguments` and runs the tool with them. True when the
    /// first element of the answer is true. Values that JSON cannot hold are a failed write: the
    /// tool is not run and `arguments` stays as it is.
    bool write(QStringList &arguments, const QVariantList &values);

    /// The elements of a JSON array. Any other JSON value gives an empty list, text that is no JSON
    /// an empty list and a debug message.
    static QVariantList byteArray2VariantList(const QByteArray &bytes);

    /// `values` as the text of a JSON array in plain ASCII; a null text when JSON cannot hold them.
    static QString variantListToJson(const QVariantList &values);
    /// @}

private:
    QString structureVersion = QStringLiteral("/");
    QStringList lastArguments;
    QVariantList lastResult;
    const std::unique_ptr<QScriptEngine> engine;
    const DevicePaths paths;
    const ToolRunner runTool;
};
