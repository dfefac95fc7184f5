#include "app/TerminalGui.h"

#include "app/ResizeSignal.h"
#include "app/TerminalOutput.h"
#include "diagnose/DiagnoseScreen.h"
#include "render/Bars.h"
#include "render/EditDialog.h"
#include "render/FrameComposer.h"
#include "render/InputValidation.h"
#include "render/ListDialog.h"
#include "render/MenuView.h"
#include "render/SliderDialog.h"

#include <QCoreApplication>
#include <QTimer>

#include <sys/ioctl.h>
#include <unistd.h>

TerminalGui::TerminalGui(const DevicePaths &paths)
    : handler(paths)
    , screen(writeToTerminal)
{
    updateWindowSize();
}

TerminalGui::~TerminalGui()
{
    TerminalMode::restore();
    screen.leave();
}

void TerminalGui::updateWindowSize()
{
    winsize size = {};
    ioctl(STDIN_FILENO, TIOCGWINSZ, &size);
    const bool isKnown = size.ws_col != 0 && size.ws_row != 0;
    state.termColumns = isKnown ? size.ws_col : 80;
    state.termRows = isKnown ? size.ws_row : 24;
}

void TerminalGui::initTerminal()
{
    screen.clear();
    prepareTerminal();
    refreshView();
}

void TerminalGui::prepareResize()
{
    constexpr int delayMs = 500;
    QTimer::singleShot(delayMs, this, &TerminalGui::resizeTerminal);
}

void TerminalGui::resizeTerminal()
{
    updateWindowSize();
    state.forgetMenuLines();
    state.overlayLines.clear();
    initTerminal();
}

bool TerminalGui::prepareTerminal()
{
    const QByteArray version = handler.scriptHelper().run({ QStringLiteral("--version") });
    state.dbcVersion = QString::fromLatin1(version).split(QLatin1Char('/')).first();
    return false;
}

bool TerminalGui::exitToShell()
{
    return exitToShellChosen;
}

void TerminalGui::closeGui()
{
    QCoreApplication::quit();
}

void TerminalGui::refreshView()
{
    const ResizeSignal::Hold hold;
    if (state.requestedView != NoView && state.requestedView != state.currentView)
        prepareView();
    drawMenu();
}

void TerminalGui::prepareView()
{
    if (state.requestedView == MenuView) {
        openMenu();
    } else {
        state.listMin = 0;
        state.optionCount = 0;
        state.rangeMin = 0;
        state.rangeLimit = 0;
        state.listIndex = -1;
        state.dialogValue = -1;
    }
    if (state.requestedView == StartView) {
        state.overlayLines.clear();
        state.step = 1;
        screen.setCursorVisible(false);
    }
    state.currentView = state.requestedView;
}

void TerminalGui::openMenu()
{
    if (!root) {
        root = handler.build();
        numberItems();
    }
    screen.moveCursorTo(0, 0);
    state.overlayLines.clear();
    state.step = 1;
    screen.setCursorVisible(false);
}

void TerminalGui::numberItems()
{
    state.visibleItems.clear();
    handler.numberVisibleItems(*root, state.visibleItems);
}

void TerminalGui::drawMenu()
{
    if (!state.hasMenuLines && state.currentView != StartView && root)
        renderMenu();
    if (state.overlayLines.isEmpty() && state.currentView != MenuView)
        buildOverlay(state.selectedIndex);

    const TreeViewItem *const item = state.selectedItem();
    const CursorPosition cursor = editPosition(state, item ? fieldLength(handler, *item) : 0);
    const QString title = titleBar(handler.setupStructureVersion(), state.dbcVersion);
    screen.show(composeFrame(state, title), state.termRows, cursor);
}

void TerminalGui::renderMenu()
{
    handler.refreshValues(*root);
    int line = 0;
    MenuRenderer(handler, state.termColumns, state.statusText)
        .renderItemLines(*root, line, state.menuLines);
    state.hasMenuLines = true;
}

void TerminalGui::buildOverlay(int line)
{
    const TreeViewItem *const item = state.visibleItems.value(line);
    switch (state.currentView) {
    case StartView:
        state.overlayLines = startMenu(state);
        break;
    case EditView:
        if (item)
            buildDialog(*item);
        break;
    case DiagnoseView:
        state.overlayLines = diagnoseScreen(state, handler, item);
        break;
    default:
        break;
    }
}

void TerminalGui::buildDialog(const TreeViewItem &item)
{
    if (handler.isInputKind(item, DropdownInput)) {
        state.overlayLines = listSelector(state, handler, item);
    } else if (handler.isInputKind(item, BooleanInput)) {
        state.overlayLines = booleanSelector(state, item);
    } else if (handler.isInputKind(item, SliderInput)) {
        state.overlayLines = sliderDialog(state, handler, item);
    } else if (handler.isInputKind(item, EditInput)) {
        state.overlayLines = editDialog(state, handler, item);
        if (!screen.isCursorVisible()) {
            // From the first row, the line break that follows cannot scroll the screen.
            screen.moveCursorTo(0, 0);
            screen.setCursorVisible(true);
        }
    }
}
