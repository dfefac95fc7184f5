#include "render/MenuView.h"

#include "json/Values.h"
#include "locale/CTranslationHandler.h"
#include "menu/RepeatedScreen.h"
#include "render/ForeignText.h"

namespace {

constexpr int indentation = 4; // columns per level

const QLatin1String i18nPrefix("i18n_");
const QLatin1String latitudePrefix("i18n_gps_lat_");
const QLatin1String longitudePrefix("i18n_gps_lon_");
const QLatin1String coordinateSeparator("__sep__");
const QLatin1String dateTimePrefix("i18n_datetime_");

// The backend marks what is to be translated and what is a position or a date.
QString resolveMarks(QString text)
{
    if (text.startsWith(latitudePrefix))
        return text.remove(latitudePrefix).remove(longitudePrefix).remove(coordinateSeparator);
    if (text.startsWith(dateTimePrefix))
        return translate(text.remove(dateTimePrefix));
    const std::optional<QString> key = markedKey(text);
    return key ? translate(*key) : text;
}

class MenuRenderer {
public:
    MenuRenderer(const TreeViewItemHandler &handler, int termColumns)
        : handler(handler)
        , termColumns(termColumns)
    {
    }

    void renderItemLines(const TreeViewItem &item, int depth)
    {
        if (item.parentItem) {
            if (!handler.isVisible(item))
                return;
            lines.insert(lines.cend(), lines.size(), itemLine(item, depth));
            if (!item.expanded)
                return;
        }
        for (const auto &child : item.children)
            renderItemLines(*child, depth + 1);
    }

    Frame lines;
    QString note; ///< how the last list value was found

private:
    QString itemLine(const TreeViewItem &item, int depth)
    {
        const int labelColumn = depth * indentation;
        const QString text = label(item);
        const QString value = printable(valueText(item));
        QString line;
        // All lines are kept: each allocates once, and no more than it needs.
        line.reserve(qMax(labelColumn + text.size(), value.isEmpty() ? 0 : valueColumn(termColumns))
            + value.size());
        if (depth >= 2 && item.position == 0)
            insertText(line, labelColumn - 2 * indentation, QStringLiteral(" +"));
        insertText(line, qMax(labelColumn - indentation, 0), marker(item));
        insertText(line, labelColumn, text);
        insertText(line, valueColumn(termColumns), value);
        return line;
    }

    QString marker(const TreeViewItem &item) const
    {
        if (!item.children.empty())
            return QStringLiteral("->");
        if (handler.isEditable(item))
            return QStringLiteral(" *");
        const InputKind kind = handler.inputKind(item);
        if (kind == ButtonInput)
            return QStringLiteral(" #");
        if (kind == SeparatorInput)
            return QStringLiteral("  ");
        if (handler.diagnoseScreen(item) != NoInterface)
            return QStringLiteral(" $");
        return QStringLiteral(" -");
    }

    QString label(const TreeViewItem &item) const
    {
        QString text = printable(translate(handler.labelKey(item)));
        if (isCompartmentOrMeterButton(item.referringEntry, handler.names()))
            text += QLatin1Char(' ') + QString::number(item.position + 1);
        return text;
    }

    QString valueText(const TreeViewItem &item)
    {
        QString text = textOf(item.value);
        if (text.isEmpty())
            return text;
        return isList(handler.inputKind(item)) && !handler.isInteger(item) ? listText(item)
                                                                           : resolveMarks(text);
    }

    QString listText(const TreeViewItem &item)
    {
        int index = 0;
        if (handler.hasDatabaseValues(item)) {
            index = handler.indexOfDatabaseValue(item, item.value);
            note = QStringLiteral("hasDBValues: ") + QString::number(index);
        } else {
            index = integerOf(item.value);
            note = QStringLiteral("!!hasDBValues");
        }
        return translate(textOf(handler.valueAt(item, index)));
    }

    const TreeViewItemHandler &handler;
    const int termColumns;
};

} // namespace

std::optional<QString> markedKey(const QString &text)
{
    if (!text.startsWith(i18nPrefix) || text.startsWith(latitudePrefix)
        || text.startsWith(dateTimePrefix))
        return std::nullopt;
    return QString(text).remove(i18nPrefix);
}

Frame menuLines(
    const TreeViewItemHandler &handler, const TreeViewItem &item, int termColumns, QString *note)
{
    MenuRenderer renderer(handler, termColumns);
    int depth = 0;
    for (const TreeViewItem *above = item.parentItem; above; above = above->parentItem)
        ++depth;
    renderer.renderItemLines(item, depth);
    if (note && !renderer.note.isEmpty())
        *note = renderer.note;
    return renderer.lines;
}

int firstShownLine(int selectedIndex, int termRows)
{
    const int pageLines = termRows - 2;
    if (pageLines <= 1)
        return qMax(selectedIndex, 0);
    if (selectedIndex < pageLines)
        return 0;
    const int advance = pageLines - 1;
    return ((selectedIndex - pageLines) / advance + 1) * advance;
}
