// The words by which a menu definition says what an item is.
#pragma once

#include <QString>

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

/// True for the kinds whose values can be changed in a dialog.
constexpr bool hasDialog(InputKind kind)
{
    return kind == DropdownInput || kind == EditInput || kind == BooleanInput
        || kind == SliderInput;
}

/// True for the kinds whose values are choices of a list.
constexpr bool isList(InputKind kind)
{
    return kind == DropdownInput || kind == SelectLabelInput;
}

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

/// What belongs to a kind of field interfaces.
struct InterfaceWords {
    const char *css; ///< of the menu entry that opens its diagnose screen
    const char *listQuery; ///< asks the backend for its state
    const char *name; ///< in the command that switches it on and off
    const char *title; ///< of its diagnose screen
};
/// By InterfaceKind; all null for NoInterface.
constexpr std::array<InterfaceWords, LevelInterface + 1> interfaceWords = { {
    {},
    { "btnServiceDiagnoseSpdInterfaces", "get_menu_service_diagnose_spd_interfaces", "SpdInterface",
        "SPD Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)" },
    { "btnServiceDiagnoseIOInterfaces", "get_menu_service_diagnose_io_interfaces", "IoInterface",
        "IO Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)" },
    { "btnServiceDiagnoseWetlegInterfaces", "get_menu_service_diagnose_wetleg_interfaces",
        "WetlegInterface", "Wetleg Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)" },
    { "btnServiceDiagnoseTagInterfaces", "get_menu_service_diagnose_tag_interfaces", "TagInterface",
        "TAG Interface Diagnose (End: 2*<ESC>)" },
    { "btnServiceDiagnoseAsInterfaces", "get_menu_service_diagnose_as_interfaces", "AsInterface",
        "AS Interface Diagnose (End: 2*<ESC>)" },
    { "btnServiceDiagnoseLevelInterfaces", "get_menu_service_diagnose_level_interfaces",
        "LevelInterface", "Level Interface Diagnose (End: 2*<ESC>)" },
} };
static_assert(interfaceWords.back().title, "each kind has its words");

/// The words of `kind`; those of NoInterface for any number that is no kind.
constexpr const InterfaceWords &wordsOf(InterfaceKind kind)
{
    return interfaceWords[kind > NoInterface && kind <= LevelInterface ? kind : NoInterface];
}

/// The kind whose diagnose screen an entry with `css` opens; NoInterface when there is none.
inline InterfaceKind interfaceWithCss(const QString &css)
{
    int kind = LevelInterface;
    while (kind > NoInterface && css != QLatin1String(wordsOf(InterfaceKind(kind)).css))
        --kind;
    return InterfaceKind(kind);
}
