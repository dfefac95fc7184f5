// What the views show and what the keys change: the plain data that drawing and dialogs share.
#pragma once

#include "menu/TreeViewItem.h"
#include "render/Frame.h"

#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>

enum ViewId {
    NoView = -1,
    StartView, ///< the start menu; no way leads to it at present
    MenuView, ///< the menu tree
    EditView, ///< the value dialog of the selected item
    DiagnoseView ///< a live screen of field interfaces
};

/// The size of a terminal that reports none.
constexpr int standardColumns = 80;
constexpr int standardRows = 24;

struct ViewState {
    ViewId requestedView = MenuView; ///< taken over by the next refresh; NoView for none
    ViewId currentView = NoView;

    int termColumns = standardColumns;
    int termRows = standardRows;

    Frame menuLines; ///< one line per shown item; emptied to have values and lines made anew
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
    /// What the selected item held when its dialog opened; set while it holds a value chosen there.
    std::optional<QVariant> formerValue;
    QString statusText = QStringLiteral("-"); ///< a note for debuggers; shown nowhere
    QString dbcVersion; ///< the version of the backend tool

    /// Closes whatever dialog was open: the next one takes its values and bounds from its item.
    void resetDialog()
    {
        listIndex = dialogValue = -1;
        listMin = optionCount = rangeMin = rangeLimit = 0;
    }

    /// The number of lines of the menu.
    int visibleCount() const { return visibleItems.size(); }

    /// The item on the selected line, null when there is none.
    TreeViewItem *selectedItem() const { return visibleItems.value(selectedIndex); }
};
