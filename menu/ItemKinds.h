// The words by which a menu definition says what an item is.
#pragma once

#include <array>

/// Words of "inputType".
enum InputKind {
    SeparatorInput,
    DropdownInput,
    ButtonInput,
    LabelInput,
    SelectLabelInput,
    EditInput,
    BooleanInput,
    SliderInput,
    PlainInput,
    NoInput ///< none of the words
};
constexpr std::array<const char *, NoInput> inputWords = { "separator", "dropdown", "button",
    "label", "selectlabel", "edit", "boolean", "slider", "input" };
static_assert(inputWords.back(), "each kind has its word");

/// Words of "type", but for those of compartment and meter buttons.
enum TypeKind {
    CompartmentStatusType,
    CompartmentSetupType,
    ButtonType,
    EditType,
    StatusType,
    NoType ///< none of the words
};
constexpr std::array<const char *, NoType> typeWords = { "cmpBtnStatus", "cmpBtnSetup", "btn",
    "edit", "status" };
static_assert(typeWords.back(), "each kind has its word");

/// Kinds of field interfaces; a diagnose screen has the number of the interfaces it shows.
enum InterfaceKind : int {
    NoInterface,
    SpdInterface,
    IoInterface,
    WetlegInterface,
    TagInterface,
    AsInterface,
    LevelInterface
};

/// What belongs to a kind of field interfaces; all null for NoInterface and beyond the last kind.
struct InterfaceWords {
    const char *css = nullptr; ///< of the menu entry that opens its diagnose screen
    const char *listQuery = nullptr; ///< asks the backend for its state
    const char *name = nullptr; ///< in the command that switches it on and off
    const char *title = nullptr; ///< of its diagnose screen
};

constexpr InterfaceWords wordsOf(InterfaceKind kind)
{
    switch (kind) {
    case NoInterface:
        break;
    case SpdInterface:
        return { "btnServiceDiagnoseSpdInterfaces", "get_menu_service_diagnose_spd_interfaces",
            "SpdInterface", "SPD Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)" };
    case IoInterface:
        return { "btnServiceDiagnoseIOInterfaces", "get_menu_service_diagnose_io_interfaces",
            "IoInterface", "IO Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)" };
    case WetlegInterface:
        return { "btnServiceDiagnoseWetlegInterfaces",
            "get_menu_service_diagnose_wetleg_interfaces", "WetlegInterface",
            "Wetleg Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)" };
    case TagInterface:
        return { "btnServiceDiagnoseTagInterfaces", "get_menu_service_diagnose_tag_interfaces",
            "TagInterface", "TAG Interface Diagnose (End: 2*<ESC>)" };
    case AsInterface:
        return { "btnServiceDiagnoseAsInterfaces", "get_menu_service_diagnose_as_interfaces",
            "AsInterface", "AS Interface Diagnose (End: 2*<ESC>)" };
    case LevelInterface:
        return { "btnServiceDiagnoseLevelInterfaces", "get_menu_service_diagnose_level_interfaces",
            "LevelInterface", "Level Interface Diagnose (End: 2*<ESC>)" };
    }
    return {};
}
