/*
 * Pages and fields of the truck controller's settings.
 *
 * Settings.settings[0] is the start page. A page lists its entries in "screens": link(css) leads to
 * the page with that css, everything else is a field of the page itself. "ajax-read" returns one
 * result per entry that has a value (all but separators and buttons), "ajax-write" takes them in the
 * same order.
 *
 * Pages for a compartment or a meter have a list page with empty "screens" and a type beginning
 * with "compBtn" or "meterBtn"; what belongs to a single one is on the page css + "ModifyDo".
 *
 * remote       0 not on remote consoles, 1 shown, 2 shown but not changeable there
 * accessLvl    4 always, 6 only with the electronic seal open, 9 factory only
 * validation   C<n> text, N<n> whole number, N<n>.<m> decimal number, DATE.<format>, GPS, IPV4, FEAT
 * checkIgnore  findings of dravikon-menu-check that are intended; consoles and browsers ignore it
 * dbValues     what the database stores for the entry of "values" at the same position; without it
 *              the database stores the position itself
 */

var PRODUCTS = {
    names: ["product_diesel", "product_super95", "product_super98", "product_heating_oil",
        "product_biodiesel", "product_adblue", "product_none"],
    codes: ["DK", "SU", "SP", "HO", "FA", "AD", "--"]
};

var EVENT_LOG_LENGTH = 72;

function extend(target, options) {
    var name;
    for (name in options) {
        if (options.hasOwnProperty(name)) {
            target[name] = options[name];
        }
    }
    return target;
}

/* ---- fields ---- */

function Field(inputType, i18n, options) {
    this.inputType = inputType;
    this.i18n = i18n;
    extend(this, options);
}

Field.prototype.access = function (level) {
    this.accessLvl = level;
    return this;
};

Field.prototype.factoryOnly = function () {
    return this.access(9).checkIgnoring("access-level");
};

Field.prototype.onRemote = function (remote) {
    this.remote = remote;
    return this;
};

Field.prototype.checkIgnoring = function (finding) {
    this.checkIgnore = finding;
    return this;
};

function separator(i18n) {
    return new Field("separator", i18n);
}

function label(i18n) {
    return new Field("label", i18n);
}

function button(i18n, onClick) {
    return new Field("button", i18n, { onClick: onClick });
}

function selectLabel(i18n, values, dbValues) {
    var field = new Field("selectlabel", i18n, { values: values });
    if (dbValues) {
        field.dbValues = dbValues;
    }
    return field;
}

function dropdown(i18n, values, dbValues) {
    var field = new Field("dropdown", i18n, { values: values });
    if (dbValues) {
        field.dbValues = dbValues;
    }
    return field;
}

/* The position in the list is the number itself, so the page shows the number. */
function counter(i18n, values) {
    return new Field("dropdown", i18n,
        { values: values, integer: true, checkIgnore: "integer-list" });
}

function edit(i18n, validation, options) {
    return extend(new Field("edit", i18n, { validation: validation }), options);
}

function text(i18n, length) {
    return edit(i18n, "C" + length);
}

function number(i18n, digits, lowest, highest) {
    return edit(i18n, "N" + digits, { range: [lowest, highest] });
}

/* A rule that only browsers know: consoles show the value and accept no other. */
function browserEdit(i18n, validation, options) {
    return edit(i18n, validation, options).checkIgnoring("dead-rule");
}

function onOff(i18n) {
    return new Field("boolean", i18n);
}

function slider(i18n, min, max, step) {
    return new Field("slider", i18n, { min: min, max: max, step: step });
}

function product(i18n) {
    return dropdown(i18n, PRODUCTS.names, PRODUCTS.codes);
}

/* ---- pages ---- */

function link(css, options) {
    return extend({ css: css, remote: 1 }, options);
}

function page(css, screens, options) {
    return extend({ css: css, type: "btn", screens: screens }, options);
}

function reads(group, options) {
    return extend({ "ajax-read": "get_menu " + group }, options);
}

function readsAndWrites(group, options) {
    return reads(group, extend({ "ajax-write": "set_menu " + group }, options));
}

function diagnosePage(css) {
    return { css: css, type: "status", refresh: 1000 };
}

/* ---- event log ---- */

datatransferLogbookHandler.columns = ["event_log_time", "event_log_text"];

datatransferLogbookHandler.fieldName = function (number) {
    return "event_log_" + (number < 10 ? "0" : "") + number;
};

datatransferLogbookHandler.exportCsv = function () {
    window.location.href = "/download/logbook.csv";
};

function eventLogFields() {
    var fields = [
        button("event_log_export", datatransferLogbookHandler.exportCsv),
        separator("event_log_section_latest")
    ];
    var i;
    for (i = 1; i <= EVENT_LOG_LENGTH; i += 1) {
        fields.push(label(datatransferLogbookHandler.fieldName(i)));
    }
    return fields;
}

function productFields() {
    var fields = [];
    var i;
    for (i = 1; i <= 6; i += 1) {
        fields.push(product("products_slot_" + i).checkIgnoring("list-value"));
        fields.push(text("products_short_name_" + i, 8).access(6));
    }
    return fields;
}

function spdFields() {
    var fields = [];
    var i;
    for (i = 1; i <= 4; i += 1) {
        fields.push(separator("interfaces_spd_section_" + i));
        fields.push(onOff("interfaces_spd_used").access(6));
        fields.push(number("interfaces_spd_channels", 2, 0, 20).access(6));
        fields.push(dropdown("interfaces_spd_mode", ["spd_mode_single", "spd_mode_chain"]).access(6));
    }
    return fields;
}

function SettingsDefinition() {
    this.setupStructureVersion = "2.14";
    this.settings = [];
}

SettingsDefinition.prototype.add = function () {
    var i;
    for (i = 0; i < arguments.length; i += 1) {
        this.settings.push(arguments[i]);
    }
};

var Settings = new SettingsDefinition();

/* ---- start page ---- */

Settings.add(
    page("btnMain", [
        link("btnTruckStatus"),
        link("btnCompartmentStatus", { i18n: "compartment_status" }),
        link("btnLoadingplan"),
        link("btnLoadPlanning"),
        link("btnElectronicSeal"),
        link("btnParameter"),
        link("btnService")
    ])
);

/* ---- status ---- */

Settings.add(
    page("btnTruckStatus", [
        label("truck_status_time"),
        label("truck_status_position"),
        label("truck_status_mode"),
        selectLabel("truck_status_engine", ["engine_off", "engine_idle", "engine_pto"]),
        label("truck_status_speed"),
        label("truck_status_fill_level"),
        separator("truck_status_section_alarms"),
        label("truck_status_alarm"),
        label("truck_status_last_event"),
        link("btnTruckStatusTrip")
    ], reads("truck_status")),

    page("btnTruckStatusTrip", [
        label("trip_number"),
        label("trip_start"),
        label("trip_distance"),
        label("trip_delivered"),
        label("trip_stops"),
        label("trip_driver_card")
    ], reads("trip_record")),

    { css: "btnCompartmentStatus", type: "compBtnStatus", screens: {} },

    page("btnCompartmentStatusModifyDo", [
        selectLabel("compartment_status_product", PRODUCTS.names, PRODUCTS.codes),
        label("compartment_status_volume"),
        label("compartment_status_temperature"),
        label("compartment_status_density"),
        label("compartment_status_state"),
        selectLabel("compartment_status_valve", ["valve_closed", "valve_open"])
    ], reads("compartment_status"))
);

/* ---- loading ---- */

Settings.add(
    page("btnLoadingplan", [
        label("loading_plan_number"),
        label("loading_plan_depot")
    ], reads("load_plan_draft")),

    page("btnLoadPlanning", [
        link("btnLoadPlanActive"),
        link("btnLoadPlanRules")
    ]),

    page("btnLoadPlanActive", [
        label("loading_plan_number"),
        label("loading_plan_depot"),
        label("loading_plan_valid_until"),
        selectLabel("loading_plan_state",
            ["plan_state_received", "plan_state_loading", "plan_state_done"], [10, 20, 30]),
        label("loading_plan_total"),
        new Field("input", "loading_plan_remark"),
        separator("loading_plan_section_actions"),
        button("loading_plan_confirm"),
        button("loading_plan_reject")
    ], reads("load_plan_active")),

    page("btnLoadPlanRules", [
        onOff("load_rules_check_product"),
        onOff("load_rules_check_residue"),
        dropdown("load_rules_mixing",
            ["mixing_forbidden", "mixing_same_family", "mixing_allowed"]).access(6),
        dropdown("load_rules_sequence",
            ["sequence_front", "sequence_rear", "sequence_free"], ["front", "rear", "free"]),
        number("load_rules_reserve", 3, 0, 500),
        text("load_rules_order_prefix", 8)
    ], readsAndWrites("load_plan_rules"))
);

/* ---- electronic seal ---- */

Settings.add(
    page("btnElectronicSeal", [
        onOff("seal_closed").access(4),
        label("seal_intact"),
        label("seal_number"),
        label("seal_since"),
        label("seal_openings"),
        separator("seal_section_open"),
        dropdown("seal_reason",
            ["seal_reason_none", "seal_reason_calibration", "seal_reason_repair",
                "seal_reason_upgrade"], [0, 10, 20, 30]).access(6),
        text("seal_note", 20).access(6),
        onOff("seal_alarm").access(6),
        button("seal_print")
    ], readsAndWrites("electronic_seal"))
);

/* ---- parameters ---- */

Settings.add(
    page("btnParameter", [
        link("btnParameterTruckSetup"),
        link("btnParameterCompartments", { i18n: "compartments" }),
        link("btnParameterMeters", { i18n: "meters" }),
        link("btnParameterProducts"),
        link("btnParameterLimits"),
        link("btnParameterInterfaces"),
        link("btnParameterTickets"),
        link("btnParameterDisplay"),
        link("btnParameterDateTime"),
        link("btnParameterTODOTrailer"),
        link("btnServiceInfo", { remote: 0 })
    ]),

    page("btnParameterTruckSetup", [
        number("truck_setup_compartments", 1, 0, 8).access(6),
        text("truck_setup_plate", 10).access(6),
        dropdown("truck_setup_type",
            ["truck_type_rigid", "truck_type_semi", "truck_type_drawbar"],
            ["rigid", "semi", "drawbar"]).access(6),
        dropdown("truck_setup_chassis",
            ["chassis_steel", "chassis_aluminium", "chassis_light"]).access(6),
        number("truck_setup_capacity", 5, 1000, 45000).access(6),
        counter("truck_setup_axles",
            ["axles_0", "axles_1", "axles_2", "axles_3", "axles_4", "axles_5"]).access(6),
        separator("truck_setup_section_equipment"),
        onOff("truck_setup_vapour_recovery"),
        onOff("truck_setup_overfill"),
        onOff("truck_setup_pump"),
        label("truck_setup_serial").onRemote(2),
        text("truck_setup_fleet_code", 12).onRemote(2),
        text("truck_setup_dealer", 12).onRemote(0)
    ], readsAndWrites("truck_setup")),

    { css: "btnParameterCompartments", type: "compBtnSetup", screens: {} },

    page("btnParameterCompartmentsModifyDo", [
        text("compartment_name", 12),
        number("compartment_capacity", 5, 0, 12000).access(6),
        product("compartment_product").checkIgnoring("list-value"),
        dropdown("compartment_coupling", ["coupling_api", "coupling_tw", "coupling_guillemin"])
            .access(6),
        slider("compartment_prewarning", 80, 98, 2),
        onOff("compartment_enabled"),
        label("compartment_last_product"),
        separator("compartment_section_details"),
        link("btnParameterCompartmentCalibration"),
        link("btnParameterCompartmentSensors")
    ], readsAndWrites("compartment")),

    page("btnParameterCompartmentCalibration", [
        label("calibration_date"),
        number("calibration_offset", 4, -500, 500).access(6),
        browserEdit("calibration_factor", "N5.2", { range: [0, 2] }).access(6),
        dropdown("calibration_table", ["table_linear", "table_dipstick", "table_3d"], [1, 2, 5])
            .access(6),
        label("calibration_points").checkIgnoring("unshowable"),
        button("calibration_start").access(6)
    ], readsAndWrites("compartment_calibration")),

    page("btnParameterCompartmentSensors", [
        selectLabel("sensors_overfill", ["sensor_none", "sensor_optical", "sensor_thermistor"]),
        onOff("sensors_wetleg").access(6),
        number("sensors_wetleg_length", 4, 0, 1500).access(6),
        onOff("sensors_residue").access(6),
        label("sensors_serial")
    ], readsAndWrites("compartment_sensors")),

    { css: "btnParameterMeters", type: "meterBtnSetup", screens: [] },

    page("btnParameterMetersModifyDo", [
        text("meter_name", 12),
        dropdown("meter_type", ["meter_turbine", "meter_piston", "meter_gear"],
            ["TU", "PD", "GE"]).access(6),
        number("meter_pulses", 5, 1, 99999).access(6),
        browserEdit("meter_k_factor", "N3.4", { range: [0, 100] }).access(6),
        number("meter_max_flow", 4, 0, 2500).access(6),
        number("meter_min_flow", 3, 0, 250).access(6),
        onOff("meter_temperature_compensation").access(6),
        slider("meter_preset_stage", 0, 10, 1),
        label("meter_totaliser"),
        link("btnParameterMeterCalibration")
    ], readsAndWrites("meter")),

    page("btnParameterMeterCalibration", [
        label("calibration_date"),
        number("calibration_prover", 5, 0, 20000).access(6),
        label("calibration_deviation"),
        text("calibration_certificate", 16).access(6),
        onOff("calibration_locked").onRemote(2)
    ], readsAndWrites("meter_calibration")),

    page("btnParameterProducts", productFields(), readsAndWrites("products")),

    /* The raw entries are for the workshop's own tool and have no rule that a console knows. */
    page("btnParameterLimits", [
        number("limits_flow", 4, 0, 2500),
        number("limits_delivery", 5, 0, 20000),
        number("limits_temperature_low", 3, -40, 0),
        number("limits_temperature_high", 2, 0, 80).access(6),
        browserEdit("limits_density", "N5.2", { range: [0, 1100] }),
        separator("limits_section_raw"),
        edit("limits_raw_pressure", "N3").checkIgnoring("no-range"),
        browserEdit("limits_raw_mask", "HEX4"),
        browserEdit("limits_raw_delay", "n3", { range: [0, 500] }),
        browserEdit("limits_raw_tag", "C"),
        new Field("edit", "limits_raw_free").checkIgnoring("no-validation")
    ], readsAndWrites("limits")),

    page("btnParameterTickets", [
        text("tickets_header_1", 26),
        text("tickets_header_2", 26),
        text("tickets_footer", 26),
        counter("tickets_copies", ["copies_0", "copies_1", "copies_2", "copies_3"]),
        dropdown("tickets_language", ["language_en", "language_de", "language_fr"],
            ["en", "de", "fr"]),
        onOff("tickets_print_density"),
        number("tickets_next_number", 6, 1, 999999).access(6),
        button("tickets_test_print")
    ], readsAndWrites("tickets")),

    page("btnParameterDisplay", [
        slider("display_brightness", 0, 10, 1),
        slider("display_contrast", -10, 10, 1),
        slider("display_timeout", 0, 300, 30),
        slider("display_volume", 0, 7, 1),
        onOff("display_night_mode"),
        onOff("display_key_click"),
        dropdown("display_units", ["units_litre", "units_us_gallon", "units_imp_gallon"])
    ], readsAndWrites("display")),

    page("btnParameterDateTime", {
        now: label("date_time_now"),
        zone: dropdown("date_time_zone", ["zone_berlin", "zone_london", "zone_lisbon", "zone_utc"],
            ["Europe/Berlin", "Europe/London", "Europe/Lisbon", "UTC"]),
        date: browserEdit("date_time_date", "DATE.DDMMYYYY"),
        time: browserEdit("date_time_time", "DATE.HHMM"),
        satellite: onOff("date_time_satellite"),
        format: dropdown("date_time_format", ["format_european", "format_iso", "format_us"])
    }, readsAndWrites("date_time")),

    page("btnParameterTODOTrailer", [
        onOff("trailer_present"),
        number("trailer_compartments", 1, 0, 8)
    ], readsAndWrites("trailer"))
);

/* ---- interfaces ---- */

Settings.add(
    page("btnParameterInterfaces", [
        link("btnParameterInterfacesCanFasWm"),
        link("btnParameterInterfacesSpd"),
        link("btnParameterInterfacesIo"),
        link("btnParameterInterfacesPrinter"),
        link("btnParameterInterfacesNetwork"),
        link("btnParameterInterfacesTelematics")
    ]),

    page("btnParameterInterfacesCanFasWm", [
        dropdown("interfaces_can_fas_wm_bitrate", ["bitrate_125", "bitrate_250", "bitrate_500"],
            [125000, 250000, 500000]).access(6),
        counter("interfaces_can_fas_wm_fpi",
            ["meters_0", "meters_1", "meters_2", "meters_3", "meters_4"]).access(6),
        number("interfaces_can_fas_wm_node", 3, 1, 127).access(6),
        onOff("interfaces_can_fas_wm_termination").access(6),
        label("interfaces_can_fas_wm_state"),
        label("interfaces_can_fas_wm_frames")
    ], readsAndWrites("interfaces_can_fas_wm")),

    page("btnParameterInterfacesSpd", spdFields(), readsAndWrites("interfaces_spd")),

    page("btnParameterInterfacesIo", [
        dropdown("interfaces_io_input_1", ["io_input_none", "io_input_ignition", "io_input_pto",
            "io_input_stop"]).access(6),
        dropdown("interfaces_io_input_2", ["io_input_none", "io_input_ignition", "io_input_pto",
            "io_input_stop"]).access(6),
        dropdown("interfaces_io_output_1", ["io_output_none", "io_output_lamp", "io_output_horn"],
            ["NONE", "LAMP", "HORN"]).access(6),
        number("interfaces_io_debounce", 3, 0, 250).access(6),
        onOff("interfaces_io_inverted").access(6)
    ], readsAndWrites("interfaces_io")),

    page("btnParameterInterfacesPrinter", [
        dropdown("interfaces_printer_model", ["printer_matrix", "printer_thermal", "printer_none"],
            ["matrix", "thermal", "none"]),
        dropdown("interfaces_printer_speed", ["baud_9600", "baud_19200", "baud_38400"],
            [9600, 19200, 38400]),
        number("interfaces_printer_columns", 2, 24, 80),
        onOff("interfaces_printer_form_feed"),
        label("interfaces_printer_state")
    ], readsAndWrites("interfaces_printer")),

    page("btnParameterInterfacesNetwork", [
        onOff("interfaces_network_dhcp"),
        browserEdit("interfaces_network_address", "IPV4"),
        browserEdit("interfaces_network_mask", "IPV4"),
        browserEdit("interfaces_network_gateway", "IPV4"),
        text("interfaces_network_host", 16),
        number("interfaces_network_port", 5, 1, 65535),
        label("interfaces_network_mac")
    ], readsAndWrites("interfaces_network")),

    page("btnParameterInterfacesTelematics", [
        onOff("telematics_enabled"),
        text("telematics_share", 40),
        text("telematics_greeting", 40),
        number("telematics_interval", 4, 10, 3600),
        browserEdit("telematics_home", "GPS"),
        browserEdit("telematics_licence", "FEAT"),
        onOff("telematics_roaming"),
        separator("telematics_section_state"),
        label("telematics_symbol").checkIgnoring("unshowable"),
        label("telematics_gate").checkIgnoring("unshowable"),
        label("telematics_message"),
        label("telematics_signal"),
        label("telematics_loss"),
        label("telematics_uptime"),
        label("telematics_drift"),
        label("telematics_gain"),
        label("telematics_bytes"),
        label("telematics_balance"),
        label("telematics_queue").checkIgnoring("unshowable"),
        label("telematics_last_error"),
        label("telematics_peer")
    ], readsAndWrites("interfaces_telematics"))
);

/* ---- service ---- */

/* The last entry has no "remote": a shortcut in the browser only. */
Settings.add(
    page("btnService", [
        link("btnServiceInfo"),
        link("btnServiceEventLog"),
        link("btnServiceDiagnose"),
        link("btnServiceOutputs"),
        link("btnServiceFunctions"),
        link("btnServiceLoadingplan"),
        link("btnServiceFactory"),
        { css: "btnParameterDisplay" }
    ]),

    page("btnServiceInfo", [
        label("service_info_controller"),
        label("service_info_firmware"),
        label("service_info_bootloader"),
        label("service_info_approval"),
        label("service_info_supply"),
        label("service_info_board_temperature"),
        label("service_info_operating_hours"),
        selectLabel("service_info_state", ["device_state_ok", "device_state_warning",
            "device_state_fault"], ["OK", "WARN", "FAULT"]),
        new Field("input", "service_info_location")
    ], reads("service_info")),

    page("btnServiceEventLog", eventLogFields(), reads("service_event_log")),

    page("btnServiceDiagnose", [
        link("btnServiceDiagnoseSpdInterfaces"),
        link("btnServiceDiagnoseIOInterfaces"),
        link("btnServiceDiagnoseWetlegInterfaces"),
        link("btnServiceDiagnoseTagInterfaces"),
        link("btnServiceDiagnoseAsInterfaces"),
        link("btnServiceDiagnoseLevelInterfaces")
    ]),

    diagnosePage("btnServiceDiagnoseSpdInterfaces"),
    diagnosePage("btnServiceDiagnoseIOInterfaces"),
    diagnosePage("btnServiceDiagnoseWetlegInterfaces"),
    diagnosePage("btnServiceDiagnoseTagInterfaces"),
    diagnosePage("btnServiceDiagnoseAsInterfaces"),
    diagnosePage("btnServiceDiagnoseLevelInterfaces"),

    page("btnServiceOutputs", [
        onOff("outputs_pump").access(5),
        onOff("outputs_bottom_valve").access(6),
        onOff("outputs_vapour_valve").access(6),
        onOff("outputs_lamp").access(2),
        slider("outputs_pump_speed", 0, 100, 10).access(6)
    ], readsAndWrites("service_outputs")),

    /* The buttons start the tests; the selection above them is for browsers only. */
    page("btnServiceFunctions", [
        dropdown("functions_test", ["test_lamps", "test_valves", "test_printer"]),
        onOff("functions_repeat"),
        edit("functions_workshop", "C10", { type: "edit", remote: 1 }),
        edit("functions_password", "C10", { type: "edit" }),
        separator("functions_section_start"),
        button("functions_start"),
        button("functions_stop"),
        button("functions_restart").access(6)
    ], reads("service_functions", { checkIgnore: "no-write" })),

    page("btnServiceLoadingplan", [
        onOff("service_loading_plan_simulation")
    ], readsAndWrites("service_load_plan")),

    page("btnServiceFactory", [
        text("factory_serial", 16).factoryOnly(),
        dropdown("factory_variant", ["variant_a", "variant_b", "variant_c"]).factoryOnly(),
        onOff("factory_approved").factoryOnly(),
        number("factory_supply_trim", 3, -99, 99).factoryOnly()
    ], readsAndWrites("service_factory"))
);
