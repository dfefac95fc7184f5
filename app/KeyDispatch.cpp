// What each key does in each view.
#include "app/TerminalGui.h"

#include "render/Selection.h"
#include "render/ValueDialog.h"

#include <QCoreApplication>

namespace {

bool isQuit(int key)
{
    return key == Qt::Key_Q || (key & 0xff) == 'q';
}

} // namespace

void TerminalGui::processKeyEvent(Qt::Key key)
{
    state.requestedView = NoView;
    switch (state.currentView) {
    case StartView:
        processStartKey(key);
        break;
    case MenuView:
        processMenuKey(key);
        break;
    case EditView:
        processEditKey(key);
        break;
    case DiagnoseView:
        processDiagnoseKey(key);
        break;
    case NoView:
        break;
    }
    refreshView();
}

void TerminalGui::processStartKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
        return chooseStart();
    case Qt::Key_Up:
        return moveVertically(-1);
    case Qt::Key_Down:
        return moveVertically(+1);
    default:
        if (isQuit(key))
            closeGui();
    }
}

void TerminalGui::processMenuKey(int key)
{
    const int page = state.termRows - 2;
    switch (key) {
    case Qt::Key_Up:
        return moveVertically(-1);
    case Qt::Key_Down:
        return moveVertically(+1);
    case Qt::Key_PageUp:
        return moveVertically(-page);
    case Qt::Key_PageDown:
        return moveVertically(+page);
    case Qt::Key_Return:
        return activateItem();
    default:
        if (isQuit(key))
            closeGui();
    }
}

void TerminalGui::processEditKey(int key)
{
    state.overlayLines.clear();
    switch (key) {
    case Qt::Key_Escape:
        return closeEdit();
    case Qt::Key_Backspace:
        return removeCharacter(state, handler);
    case Qt::Key_Return:
        return confirmEdit();
    case Qt::Key_Left:
        return moveHorizontally(-1);
    case Qt::Key_Right:
        return moveHorizontally(+1);
    case Qt::Key_Up:
        return moveVertically(-1);
    case Qt::Key_Down:
        return moveVertically(+1);
    default:
        return typeCharacter(state, handler, key);
    }
}

void TerminalGui::processDiagnoseKey(int key)
{
    state.overlayLines.clear();
    switch (key) {
    case Qt::Key_PageUp:
        return moveVertically(-1);
    case Qt::Key_PageDown:
        return moveVertically(+1);
    case Qt::Key_Escape:
        return leaveDiagnose();
    default:
        break;
    }
}

void TerminalGui::moveVertically(int delta)
{
    moveSelection(state, handler, false, delta);
}

void TerminalGui::moveHorizontally(int delta)
{
    moveSelection(state, handler, true, delta);
}

void TerminalGui::chooseStart()
{
    if (state.listIndex != 0) {
        exitToShellChosen = true;
        closeGui();
        return;
    }
    state.menuLines.clear();
    state.requestedView = MenuView;
}

void TerminalGui::activateItem()
{
    const TreeViewItem *const item = state.selectedItem();
    const InterfaceKind kind = item ? handler.diagnoseScreen(*item) : NoInterface;
    if (item && handler.isEditable(*item)) {
        state.requestedView = EditView;
    } else if (kind != NoInterface) {
        if (handler.enableInterface(kind, true))
            state.requestedView = DiagnoseView;
    } else {
        toggleSelected();
    }
}

void TerminalGui::toggleSelected()
{
    handler.toggleItem(*root, state.selectedItem(), false);
    numberItems();
    state.menuLines.clear();
}

void TerminalGui::leaveDiagnose()
{
    state.requestedView = MenuView;
    if (const TreeViewItem *const item = state.selectedItem())
        handler.enableInterface(handler.diagnoseScreen(*item), false);
}

void TerminalGui::confirmEdit()
{
    const bool isChosen = commitValue(state, handler, state.selectedIndex);
    if (isChosen && !handler.writeItemValues(*state.selectedItem())) {
        state.statusText = QStringLiteral("ERROR");
        return;
    }
    if (isChosen)
        state.formerValue.reset();
    closeEdit();
    state.menuLines.clear();
}

void TerminalGui::closeEdit()
{
    // A value that the backend refused must neither be shown nor go out with its group.
    dropValue(state);
    state.requestedView = MenuView;
}
