// What the views show and what the keys change: the plain data that drawing and dialogs share.
#pragma once

#include "menu/TreeViewItem.h"
#include "render/Frame.h"

#include <QString>
#include <QVector>

enum ViewId {
    NoView = -1,
    StartView, ///< the start menu; no way leads to it at present
    MenuView, ///< the menu tree
    EditView, ///< the value dialog of the selected item
    DiagnoseView ///< a live screen of field interfaces
};

struct ViewState {
    int requestedView = MenuView; ///< taken over by the next refresh; NoView for none
    int currentView = NoView;

    int termColumns = 80;
    int termRows = 24;

    Frame menuLines; ///< one line per shown item
    bool hasMenuLines = false; ///< menuLines are up to date, though there may be none
    Frame overlayLines; ///< the box over the menu; emptied to have it made anew
    QVector<TreeViewItem *> visibleItems; ///< by line number, from 0, as in menuLines
    int selectedIndex = 0; ///< the selected line of the menu

    int listIndex = 0; ///< vertical: the chosen entry of a list, the shown interface; -1 at opening
    int listMin = 0; ///< lowest listIndex
    int optionCount = 0; ///< listIndex stays below it
    int dialogValue = 0; ///< horizontal: a slider's value, the edit cursor; -1 at opening
    int rangeMin = 0; ///< lowest dialogValue
    int rangeLimit = 0; ///< highest dialogValue; the field length of an edit field
    int step = 1; ///< what one key press moves

    QString editBuffer; ///< the text being edited
    bool hasRefusedValue = false; ///< the item holds a value that the backend did not take
    QString statusText = QStringLiteral("-"); ///< a note for debuggers; shown nowhere
    QString dbcVersion; ///< the version of the backend tool

    /// Empties menuLines, to have values and lines made anew at the next drawing.
    void forgetMenuLines()
    {
        menuLines.clear();
        hasMenuLines = false;
    }

    /// The number of lines of the menu.
    int visibleCount() const { return visibleItems.size(); }

    /// The item on the selected line, null when there is none.
    TreeViewItem *selectedItem() const { return visibleItems.value(selectedIndex); }
};
