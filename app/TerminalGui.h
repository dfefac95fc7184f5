// The conductor of the session: takes keys, asks the menu and the backend, draws.
#pragma once

#include "app/TerminalMode.h"
#include "menu/TreeViewItemHandler.h"
#include "render/Screen.h"
#include "render/ViewState.h"

#include <QObject>

#include <memory>

class TerminalGui : public QObject {
    Q_OBJECT
public:
    /// Takes over the size of the terminal on standard input and switches it to single keys;
    /// without a terminal there, the size is 80 x 24. Draws nothing yet; all output goes to `line`.
    /// `runTool` replaces running the backend tool.
    TerminalGui(const DevicePaths &paths, Line &line, const ToolRunner &runTool = {});

    /// Restores the terminal and leaves it cleared, unless a shell has it.
    ~TerminalGui() override;

    /// Takes over the size of the terminal, 80 x 24 if it reports none.
    void updateWindowSize();

    const ViewState &viewState() const { return state; }

    /// What the terminal shows. A frame leaves when the screen is told of a wait for input.
    Screen &shownScreen() { return screen; }

    /// Switches to the requested view, if any, and draws the current one.
    void refreshView();

    /// Draws everything after another program has used the terminal.
    void resumeTerminal();

public slots:
    /// Clears the screen, asks for the backend's version and draws everything.
    void initTerminal();

    /// Acts on a key as the current view defines, and redraws.
    void processKeyEvent(Qt::Key key);

    /// Calls `resizeTerminal` half a second later, or at the next key after that: the session's
    /// wait for input ignores this timer. Nothing calls it.
    void prepareResize();

    /// Reads the size of the terminal anew and draws everything.
    void resizeTerminal();

    /// Asks the backend tool for its version. Always false.
    bool prepareTerminal();

    /// True when the user asked for the local shell.
    bool exitToShell();

    /// Ends the session.
    void closeGui();

private:
    void prepareView();
    void numberItems();
    void drawMenu();
    void buildOverlay(int line);

    /// \name Keys (bodies in app/KeyDispatch.cpp, like that of `processKeyEvent`)
    /// @{
    void processStartKey(int key);
    void processMenuKey(int key);
    void processEditKey(int key);
    void processDiagnoseKey(int key);
    void moveVertically(int delta);
    void moveHorizontally(int delta);
    void activateItem();
    void toggleSelected();
    void confirmEdit();
    void closeEdit();
    void leaveDiagnose();
    void chooseStart();
    /// @}

    TreeViewItemHandler handler;
    std::unique_ptr<TreeViewItem> root; ///< null until the menu is first shown
    ViewState state;
    bool exitToShellChosen = false;
    Screen screen;
    TerminalMode mode;
};
