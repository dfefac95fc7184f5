#include "check/Layout.h"

#include "check/Answer.h"
#include "check/LoadedMenu.h"
#include "check/QuietMessages.h"
#include "check/ScreenFields.h"
#include "json/Values.h"
#include "locale/CTranslationHandler.h"
#include "menu/CountEntry.h"
#include "menu/Saturated.h"
#include "render/ForeignText.h"
#include "render/Frame.h"
#include "render/InputValidation.h"

#include <QSet>

#include <array>

namespace {

constexpr int columns = 100;
constexpr int textColumn = 10; // of what follows "read" and the like
constexpr std::array<int, 5> cellColumns = { 0, 5, 35, 58, 77 };

const QString legend = QStringLiteral(
    "NUMBER is that of the compartment or meter, from 0. VALUES are all values of the screen as a "
    "JSON array, the last argument; an edit field writes texts, for numbers too, as in \"5000\". A "
    "read answers an array with a value for each row, a write [true], or [false] to refuse the "
    "values.");

// `text` in lines of `width`, broken at blanks where it has some.
QStringList wrapped(const QString &text, int width)
{
    QStringList lines;
    QString rest = printable(text);
    while (rest.endsWith(QLatin1Char(' ')))
        rest.chop(1);
    while (rest.size() > width) {
        const int blank = rest.lastIndexOf(QLatin1Char(' '), width);
        lines += rest.left(blank > 0 ? blank : width);
        rest.remove(0, blank > 0 ? blank + 1 : width);
    }
    return lines << rest;
}

// The values of a list as they are written, with their texts.
QStringList options(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    QStringList lines;
    for (int i = 0, count = handler.valueCount(item); i < count; ++i) {
        const QVariant value =
            handler.hasDatabaseValues(item) ? handler.databaseValueAt(item, i) : QVariant(i);
        lines +=
            shownValue(value) + QLatin1String(" = ") + translate(textOf(handler.valueAt(item, i)));
    }
    if (handler.isInteger(item))
        lines += QStringLiteral("shown as the number");
    return lines;
}

QString rule(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputRule rule = inputRule(handler, item);
    const bool isNumber = rule.kind == InputRule::Number;
    if (!rule.length || (isNumber && !hasRange(handler, item)))
        return QStringLiteral("accepts no text");
    const QString range = QStringLiteral("%1 to %2, ")
                              .arg(rangeValue(handler, item, 0))
                              .arg(rangeValue(handler, item, 1));
    return (isNumber ? range : QString()) + QStringLiteral("length %1").arg(*rule.length);
}

QStringList accepted(const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputKind kind = handler.inputKind(item);
    if (isList(kind))
        return options(handler, item);
    if (kind == SliderInput) { // it can go one beyond its maximum
        const int beyond = saturated<int>(qint64(handler.maximum(item)) + 1);
        const QString range = QStringLiteral("%1 to %2, step %3").arg(handler.minimum(item));
        return { range.arg(handler.maximum(item)).arg(handler.step(item)),
            QStringLiteral("and %1").arg(beyond) };
    }
    if (kind == EditInput)
        return { rule(handler, item) };
    return { kind == BooleanInput ? QStringLiteral("true, false") : QString() };
}

QString kindWithMarks(TreeViewItemHandler &handler, const TreeViewItem &item)
{
    const InputKind kind = handler.inputKind(item);
    const bool isReference = item.referringEntry.isValid() || !item.children.empty();
    QStringList words(kind == NoInput ? QStringLiteral("value") : QLatin1String(inputWords[kind]));
    if (isReference)
        words = QStringList(QStringLiteral("reference"));
    if (!handler.isVisible(item))
        words += QStringLiteral("hidden");
    handler.setAccessLevel(TreeViewItemHandler::sealedAccessLevel);
    const bool isEditableSealed = handler.isEditable(item);
    handler.setAccessLevel(TreeViewItemHandler::openAccessLevel);
    if (hasDialog(kind) && !isReference && !isEditableSealed)
        words += handler.isEditable(item) ? QStringLiteral("level 6") : QStringLiteral("read-only");
    return words.join(QLatin1String(", "));
}

// The columns of a row, each a list of lines. The access level becomes that of an open seal.
QVector<QStringList> layoutRow(TreeViewItemHandler &handler, const TreeViewItem &item, int position)
{
    return { { QString::number(position).rightJustified(4) }, { handler.labelKey(item) },
        { translate(handler.labelKey(item)) }, { kindWithMarks(handler, item) },
        accepted(handler, item) };
}

// The answers to the list queries of each kind's screen; the one for Level has none.
constexpr std::array<std::array<const char *, 2>, LevelInterface + 1> listAnswers = { {
    {},
    { R"(up to 4 of ["SW","HW",[20 numbers]])" },
    { R"(up to 4 of ["SW","HW",[2 numbers],[8 numbers]])" },
    { R"(up to 4 of ["SW","HW",[6 numbers],[2 numbers]])" },
    { R"(["SW","HW"])", "[SL,serial,list,quality,product,pitch,roll,list,status]" },
    { R"(["SW","HW",[["SENSOR","PRODUCT"], ...]])" },
    {},
} };

class Layout {
public:
    // The console's own functions make the calls, which get no answer.
    explicit Layout(const DevicePaths &paths)
        : menu(paths, [this](const QStringList &arguments) {
            call = arguments;
            return QByteArray();
        })
    {
    }

    QStringList make()
    {
        lines = wrapped(legend, columns);
        addHeading(QStringLiteral("At start and on a resize"));
        addCall("call", { QStringLiteral("--version") });
        addText("answer", QStringLiteral("a text; the part before the first / is shown"));
        for (const CountEntry &entry : { compartmentCount, meterCount })
            addCount(entry);
        addHeading(QStringLiteral("Whenever the menu is read"));
        addCall("call", TreeViewItemHandler::sealQuery());
        addText("answer",
            QStringLiteral(R"(["i18n_wm_false"] while the seal is open, else ["i18n_wm_true"])"));
        visit(*menu.root, {});
        return lines;
    }

private:
    void addHeading(const QString &text) { lines << QString() << wrapped(text, columns); }

    void addText(const char *word, const QString &text)
    {
        QString start = QStringLiteral("  ") + QLatin1String(word);
        for (const QString &line : wrapped(text, columns - textColumn)) {
            lines += start.leftJustified(textColumn) + line;
            start.clear();
        }
    }

    void addCall(const char *word, const QStringList &arguments)
    {
        if (!arguments.isEmpty())
            addText(word, shownCall(arguments));
    }

    void addCount(const CountEntry &entry)
    {
        const int screen = menu.screens.find(QLatin1String(entry.screen));
        if (screen < 0)
            return;
        const TreeViewItem item(menu.screens.at(screen), {}, nullptr, -1, 0);
        const int place = positionOf(entry, item.definition, menu.handler.names());
        const std::optional<QString> words = menu.handler.readBinding(item);
        if (place < 0 || !words)
            return;
        addHeading(QStringLiteral("At start, for ") + QLatin1String(entry.field));
        addCall("call", { *words });
        addText("answer",
            QStringLiteral("the values of %1; value %2 is the number")
                .arg(QLatin1String(entry.screen))
                .arg(place + 1));
    }

    // `way`: the labels of the screens above.
    void visit(const TreeViewItem &item, const QString &way)
    {
        TreeViewItemHandler &handler = menu.handler;
        if (item.parentItem && (!handler.isVisible(item) || handler.isEditable(item)))
            return;
        const QString label = translate(handler.labelKey(item));
        const QString css = item.definition.property(handler.names().css).toString();
        const QString name = way + label + (css.isEmpty() ? css : QStringLiteral(" (%1)").arg(css));
        const InterfaceKind kind = handler.diagnoseScreen(item);
        if (item.parentItem && kind != NoInterface)
            return addInterface(kind, name);
        addScreen(item, name);
        for (const auto &child : item.children)
            visit(*child, item.parentItem ? way + label + QLatin1String(" > ") : QString());
    }

    void addScreen(const TreeViewItem &screen, const QString &name)
    {
        TreeViewItemHandler &handler = menu.handler;
        const QStringList read =
            screen.parentItem ? withNumber(screen, handler.readArguments(screen)) : QStringList();
        const TreeViewItem *const changeable = changeableField(handler, screen);
        const auto key = qMakePair(screen.definition.objectId(), screen.index >= 0);
        if ((read.isEmpty() && !changeable) || done.contains(key))
            return;
        done.insert(key);
        addHeading(name);
        addCall("read", read);
        if (changeable) {
            handler.writeItemValues(*changeable);
            call.removeLast(); // the values
            addCall("write", withNumber(screen, call) << QStringLiteral("VALUES"));
        }
        int position = 0;
        for (const TreeViewItem *const field : fieldsWithValue(handler, screen))
            addRow(layoutRow(handler, *field, ++position));
    }

    static QStringList withNumber(const TreeViewItem &screen, QStringList arguments)
    {
        if (screen.index >= 0 && !arguments.isEmpty())
            arguments.last() = QStringLiteral("NUMBER");
        return arguments;
    }

    void addInterface(InterfaceKind kind, const QString &name)
    {
        addHeading(name);
        for (const bool enabled : { true, false }) {
            menu.handler.enableInterface(kind, enabled);
            addCall(enabled ? "open" : "close", call);
        }
        addText("answer", QStringLiteral("ignored"));
        for (int tagNumber = 0; tagNumber < 2; ++tagNumber) {
            const char *const listAnswer = listAnswers[kind][size_t(tagNumber)];
            if (!listAnswer)
                return;
            addCall("list", TreeViewItemHandler::listQuery(kind, tagNumber));
            addText("answer", QLatin1String(listAnswer));
        }
    }

    void addRow(const QVector<QStringList> &cells)
    {
        QStringList row;
        for (int cell = 0; cell < cells.size(); ++cell) {
            const int start = cellColumns[size_t(cell)];
            const int end = cell + 1 < cells.size() ? cellColumns[size_t(cell) + 1] - 1 : columns;
            int line = 0;
            for (const QString &item : cells[cell]) {
                for (const QString &text : wrapped(item, end - start)) {
                    if (line == row.size())
                        row += QString();
                    insertText(row[line++], start, text);
                }
            }
        }
        lines += row;
    }

    QStringList call; ///< the last one of the console's functions
    LoadedMenu menu;
    QStringList lines;
    QSet<QPair<qint64, bool>> done; ///< definitions, and whether a number follows
};

} // namespace

QStringList menuLayout(const DevicePaths &paths)
{
    const QuietMessages quiet;
    return Layout(paths).make();
}
