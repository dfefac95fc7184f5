#include "preview/SampleInterfaces.h"

static constexpr char samples[] = R"({"interfaces": {
    "SpdInterface": {
        "query": "get_menu_service_diagnose_spd_interfaces",
        "drift": [0, 0, 12],
        "answer": [
            ["2.11", "C", [410, 388, 402, 395, 420, 377, 391, 405, 399, 412, 640, 655, 631, 648, 662, 637, 644, 650, 629, 658]],
            ["2.11", "C", [512, 498, 505, 520, 491, 507, 515, 503, 496, 511, 0, 0]],
            ["2.09", "B", [705, 712, 698, 720, 701]],
            ["2.11", "C", []]
        ]
    },
    "IoInterface": {
        "query": "get_menu_service_diagnose_io_interfaces",
        "drift": [0, 0, 25],
        "answer": [
            ["1.7", "A", [2412, 2398], [1, 0, 1, 1, 0, 0, 1, 0]],
            "IO module 2 does not answer",
            ["1.6", "A", [118], [0, 0, 1]]
        ]
    },
    "WetlegInterface": {
        "query": "get_menu_service_diagnose_wetleg_interfaces",
        "drift": [0, 0, 8],
        "answer": [
            ["3.0", "D", [120, 118, 125, 119, 122, 117], [0, 1]],
            ["3.0", "D", [340, 352, 338, 345, 349, 351], [1, 1]]
        ]
    },
    "TagInterface": {
        "query": "get_menu_service_diagnose_tag_interfaces",
        "drift": [0, 0, 0, 5, 0, 4, 4],
        "answer": {"0": ["1.3", "B"], "1": [4, "TAG-00871", 12, 93, "DK", 0.4, -1.2, 2, "OK"]}
    },
    "AsInterface": {
        "query": "get_menu_service_diagnose_as_interfaces",
        "answer": [
            "2.2",
            "A",
            [["AS-104411", "DK"], ["AS-104412", "DK"], ["AS-104415", "SU"], ["AS-104419", "SP"], ["AS-104433", "HO"], ["AS-104434", "DK"]]
        ]
    },
    "LevelInterface": {
        "query": "get_menu_service_diagnose_level_interfaces",
        "drift": [0, 0, 6],
        "answer": [
            ["1.0", "A", [1180, 0, 905, 64]]
        ]
    }
}})";

std::map<QString, FieldInterface> sampleInterfaces()
{
    return stateFromJson(samples)->interfaces;
}
