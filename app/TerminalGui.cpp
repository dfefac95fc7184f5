#include "app/TerminalGui.h"

#include "diagnose/DiagnoseScreen.h"
#include "render/Bars.h"
#include "render/FrameComposer.h"
#include "render/MenuView.h"
#include "render/ValueDialog.h"

#include <QCoreApplication>
#include <QTimer>

#include <sys/ioctl.h>
#include <unistd.h>

TerminalGui::TerminalGui(const DevicePaths &paths, Line &line, const ToolRunner &runTool)
    : handler(paths, runTool)
    , screen(line)
{
    updateWindowSize();
}

TerminalGui::~TerminalGui()
{
    TerminalMode::restore();
    if (TerminalMode::isActive())
        screen.leave();
}

void TerminalGui::updateWindowSize()
{
    winsize size = {};
    ioctl(STDIN_FILENO, TIOCGWINSZ, &size);
    const bool isKnown = size.ws_col != 0 && size.ws_row != 0;
    state.termColumns = isKnown ? size.ws_col : standardColumns;
    state.termRows = isKnown ? size.ws_row : standardRows;
}

void TerminalGui::initTerminal()
{
    screen.clear();
    screen.beforeWait(false); // for the tool
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
    state.menuLines.clear();
    state.overlayLines.clear();
    initTerminal();
}

void TerminalGui::resumeTerminal()
{
    screen.setCursorVisible(screen.isCursorVisible());
    resizeTerminal();
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
    if (state.requestedView != NoView && state.requestedView != state.currentView)
        prepareView();
    drawMenu();
}

void TerminalGui::prepareView()
{
    const bool isMenu = state.requestedView == MenuView;
    if (isMenu && !root) {
        root = handler.build();
        numberItems();
    }
    if (!isMenu)
        state.resetDialog();
    if (isMenu || state.requestedView == StartView) {
        state.overlayLines.clear();
        state.step = 1;
        screen.setCursorVisible(false);
    }
    state.currentView = state.requestedView;
}

void TerminalGui::numberItems()
{
    state.visibleItems.clear();
    handler.numberVisibleItems(*root, state.visibleItems);
}

void TerminalGui::drawMenu()
{
    if (state.menuLines.isEmpty() && state.currentView != StartView && root) {
        dropValue(state); // what is read now is newer than what a dialog has changed
        handler.refreshValues(*root);
        state.menuLines = menuLines(handler, *root, state.termColumns, &state.statusText);
    }
    if (state.overlayLines.isEmpty() && state.currentView != MenuView)
        buildOverlay(state.selectedIndex);

    const QString title = titleBar(handler.setupStructureVersion(), state.dbcVersion);
    screen.show(composeFrame(state, title), state.termRows, editPosition(state, handler));
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
            state.overlayLines = valueDialog(state, handler, *item);
        if (item && handler.inputKind(*item) == EditInput && !screen.isCursorVisible())
            screen.setCursorVisible(true);
        break;
    case DiagnoseView:
        state.overlayLines = diagnoseScreen(state, handler, item);
        break;
    case MenuView:
    case NoView:
        break;
    }
}
