// What can be found wrong with a menu definition, a subject a source file.
#pragma once

#include "check/LoadedMenu.h"

#include <QVector>

enum class Severity { Warning, Error };

struct Finding {
    Severity severity;
    QLatin1String name; ///< a definition allows an intended finding by it
    QString text; ///< what is wrong and what to do
};

using Findings = QVector<Finding>;

inline Finding error(const char *name, const QString &text)
{
    return { Severity::Error, QLatin1String(name), text };
}

inline Finding warning(const char *name, const QString &text)
{
    return { Severity::Warning, QLatin1String(name), text };
}

/// Errors of the settings script, with the line where the engine knows it, and with the column too
/// where the script cannot be parsed; a missing version of the definition.
Findings scriptFindings(LoadedMenu &menu);

/// References to screens that do not exist: in "screens", and to the screen that is to be repeated.
Findings referenceFindings(const LoadedMenu &menu, const QScriptValue &definition);

/// References of an item that lead back to its own screen or to one above it.
Findings selfReferenceFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// Why a screen of the definition is nowhere in the tree.
Finding unreachedFinding(const LoadedMenu &menu, int screen);

/// Values of a visible item's children that are not stored or not read, and words that the tool
/// cannot understand.
Findings bindingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The words of "inputType" and "type" that the console does not know.
Findings wordFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// Attributes of an item, and of the reference to it, that the console does not read but whose
/// names are close to one that it does.
Findings spellingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A list of compartments or meters whose number nothing holds.
Findings listCountFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// Numbers of compartments or meters that the console does not find on their screen.
Findings countScreenFindings(const LoadedMenu &menu, int screen);

/// Lists, sliders and edit items that cannot be used as they are defined.
Findings valueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// Why an edit item refuses every text, or an end of its range.
Findings ruleFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// True when there is a text that an edit item takes.
bool acceptsSomething(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A translation key without a text, or with one that the terminal cannot show; `what` says what it
/// is of the item.
Findings keyFindings(const QString &what, const QString &key);

/// A character of `text` that a Latin-1 terminal cannot show.
Findings characterFindings(const QString &what, const QString &text);

/// Texts of a visible item that have no translation, hold characters beyond Latin-1 or reach into
/// the values.
Findings textFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
