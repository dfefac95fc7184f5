// The menu of a generated definition, drawn into memory as the session draws it on a terminal.
#include "bench/MenuSession.h"

#include "backend/BackendTool.h"
#include "render/Bars.h"
#include "render/FrameComposer.h"
#include "render/MenuView.h"
#include "render/ValueDialog.h"

#include <QByteArrayList>
#include <QVector>

#include <utility>

namespace {

QByteArray field(int number)
{
    static const char *const kinds[] = { "inputType: 'edit', validation: 'C20'",
        "inputType: 'boolean', values: ['off', 'on']",
        "inputType: 'dropdown', values: ['first', 'second', 'third']", "inputType: 'label'" };
    const QByteArray digits = QByteArray::number(number);
    return "{ i18n: 'field_" + digits + "', remote: 1, " + kinds[number % 4] + " }";
}

QByteArray reference(int screen)
{
    return "{ css: 'screen" + QByteArray::number(screen) + "', type: 'btn', remote: 1 }";
}

QByteArray screen(int number, const QByteArrayList &entries)
{
    const QByteArray digits = QByteArray::number(number);
    return "{ css: 'screen" + digits + "', i18n: 'label_" + digits
        + "', 'ajax-read': 'get_menu group_" + digits + "', screens: [" + entries.join(", ")
        + "] }";
}

QByteArray scriptWith(const QByteArrayList &screens)
{
    return "var Settings = { setupStructureVersion: 7, settings: [\n" + screens.join(",\n")
        + "\n] };\n";
}

void open(TreeViewItem &item)
{
    item.expanded = true;
    for (const auto &child : item.children) {
        child->value = child->position % 2;
        open(*child);
    }
}

} // namespace

QByteArray scriptWithScreens(int count)
{
    const int groups = (count - 1) / 10;
    QByteArrayList ofRoot;
    QVector<QByteArrayList> ofGroup(groups + 1);
    for (int number = 1; number <= groups; ++number)
        ofRoot += reference(number);
    for (int number = groups + 1; number < count; ++number)
        ofGroup[1 + number % groups] += reference(number);

    QByteArrayList screens { screen(0, ofRoot) };
    for (int number = 1; number <= groups; ++number)
        screens += screen(number, ofGroup.at(number));
    for (int number = groups + 1; number < count; ++number)
        screens += screen(number, { field(number), field(number + 1), field(number + 2) });
    return scriptWith(screens);
}

QByteArray scriptWithFields(int count)
{
    QByteArrayList fields;
    for (int number = 0; number < count; ++number)
        fields += field(number);
    return scriptWith({ screen(0, fields) });
}

MenuSession::MenuSession(const QByteArray &script)
    : handler(device.paths())
    , screen([this](const QByteArray &bytes) { written += bytes.size(); })
{
    BackendTool::abandon();
    device.setScript(script);
    root = handler.build();
    handler.updateAccessLevel();
    state.currentView = MenuView;
    numberItems();
}

void MenuSession::openAll()
{
    open(*root);
    numberItems();
    state.menuLines.clear();
}

void MenuSession::draw()
{
    if (state.menuLines.isEmpty()) {
        handler.refreshValues(*root);
        state.menuLines = menuLines(handler, *root, state.termColumns, &state.statusText);
    }
    const QString title = titleBar(handler.setupStructureVersion(), state.dbcVersion);
    screen.show(composeFrame(state, title), state.termRows, { 1, 1 });
}

void MenuSession::move(int lines)
{
    moveSelection(state, handler, false, lines);
    draw();
}

void MenuSession::toggle()
{
    handler.toggleItem(*root, state.selectedItem(), false);
    numberItems();
    state.menuLines.clear();
    draw();
}

qint64 MenuSession::takeWritten()
{
    return std::exchange(written, 0);
}

void MenuSession::numberItems()
{
    state.visibleItems.clear();
    handler.numberVisibleItems(*root, state.visibleItems);
}
