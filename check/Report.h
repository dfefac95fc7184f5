// The lines of a report on a menu definition.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

#include <QHash>
#include <QStringList>

#include <set>
#include <tuple>

/// Collects findings as lines: severity, place, text, and in brackets the name. A screen or field
/// allows findings by their names in its "checkIgnore", the global `Settings` those that belong to
/// no screen.
class Report {
public:
    explicit Report(const LoadedMenu &menu)
        : menu(menu)
    {
    }

    /// Adds what was found at `item`, with the css of its screen and the labels on the way to it.
    /// An item that several references lead to is reported once; with `instance`, the number of a
    /// compartment or meter from 0, once for each of these.
    void add(const TreeViewItem &item, const Findings &findings, int instance = -1);

    /// Adds what was found at a file or program.
    void add(const QString &place, const Findings &findings);

    const QStringList &lines() const { return reportLines; }

private:
    bool isReported(const Finding &finding, const QStringList &allowed) const;
    QString wayTo(const TreeViewItem &item, int instance);
    QString labelOf(const TreeViewItem &item, int instance);
    QString entryText(const TreeViewItem &item);

    const LoadedMenu &menu;
    std::set<std::tuple<qint64, int, QString>> reported; ///< definition, instance, text
    qint64 listed = -1; ///< the entries whose places are known
    QHash<qint64, int> places; ///< from 1, by definition
    QStringList reportLines;
};
