/*
 * Menu definitions, and what the checker reports of them: the name of the row, the screens,
 * severity and name of each problem in their order, and a part of the report's text where it
 * matters. Rows without problems are the neighbours of those that have some. The rows of devices
 * also have the backend tool's answers by the words of the call: texts are printed as they are.
 */
var Settings = { setupStructureVersion: 1 }, rows = [];

function row(name, screens, problems, says) {
    rows.push({ name: name, screens: screens, problems: problems || "", says: says || "" });
}
function device(name, screens, answers, problems, says) {
    row(name, screens, problems, says);
    var texts = rows[rows.length - 1].answers = { "--version": "1.0/2" };
    texts["get_menu_electronic_seal_status"] = '["i18n_wm_true"]';
    for (var words in answers)
        texts[words] = typeof answers[words] == "string" ? answers[words]
            : JSON.stringify(answers[words]);
}
function extend(target, more) {
    for (var key in more) target[key] = more[key];
    return target;
}
function field(kind, more) {
    return extend(extend({ i18n: "a" }, kind && { inputType: kind }), more);
}
function screen(css, entries, more) {
    return extend({ css: css, "ajax-read": "r", "ajax-write": "w", screens: entries }, more);
}
function reference(screen) { return { css: screen.css }; }
function menu() { // a start page that leads to all the others
    var others = [].slice.call(arguments);
    return [{ css: "r", screens: others.map(reference) }].concat(others);
}
function a(entries, more) { return menu(screen("a", entries, more)); }
function unbound(entries, more) { return menu(extend({ css: "a", screens: entries }, more)); }
function one(kind, more) { return a([field(kind, more)]); }
function edit(rule, range) {
    return one("edit", extend({ validation: rule }, range && { range: range }));
}
function list(values, codes, more) {
    return one("dropdown", extend(extend({ values: values }, codes && { dbValues: codes }), more));
}
function slider(min, max, step) { return one("slider", { min: min, max: max, step: step }); }
function tanks(count, more) {
    var list = extend({ css: "k", type: "compBtnA", remote: 1, screens: {} }, more);
    var setup = screen("btnParameterTruckSetup", count);
    return menu(list, setup).concat(screen("kModifyDo", [field()]));
}
var count = field("label", { i18n: "truck_setup_compartments" });

/* ---- screens ---- */
row("start page alone", [{ css: "r" }]);
row("no screens", [], "error script", "defines no screens");
row("reference to nothing", unbound([{ css: "gone" }]), "error dangling-reference",
    'error: a: A: it leads to "gone", which does not exist');
row("screen that nothing leads to", [{ css: "r" }, { css: "a", screens: [{ css: "gone" }] }],
    "warning unreached, error dangling-reference", "a: A: nothing leads to screen number 1");
row("screen without a name", [{ css: "r" }, {}], "warning unreached", "warning: : : ");
row("two screens of one css", menu(screen("a", [field()]), screen("a", [field()])),
    "error duplicate-css");
row("start page leads to itself", menu({ css: "r" }), "error self-reference, error duplicate-css");
row("screen leads back", unbound([{ css: "b" }]).concat({ css: "b", screens: { x: { css: "a" } } }),
    "error self-reference", 'error: b: A > B: it leads back to "a"');
row("screen hidden by omission", a([field()], { type: "btn" }), "warning hidden-read");
row("screen hidden on purpose", a([field()], { type: "btn", remote: 0 }));
row("screen hidden by omission, without values", unbound([field()], { type: "btn" }));
row("screen hidden by its css", a([field("edit")], { css: "aTODO" }));
row("unknown type", a([field()], { type: "Btn", remote: 1 }), "warning unknown-type",
    '"type" "Btn" is unknown');
row("interface screen without type", menu({ css: "btnServiceDiagnoseAsInterfaces", i18n: "a" }),
    "error interface-type");

/* ---- compartments and meters ---- */
row("meters without their screens", menu({ css: "k", type: "meterBtnA", remote: 1, screens: [] }),
    "error no-template, error no-count", 'the entry "interfaces_can_fas_wm_fpi"');
row("count without its screen", tanks([count]).filter(function (s) { return s.css[0] != "b"; }),
    "error dangling-reference, error no-count", 'add the screen "btnParameterTruckSetup"');
row("count without its entry", tanks([field()]), "error no-count", '"truck_setup_compartments"');
row("separator before the count", tanks([field("separator"), count]), "error count-place");
row("button before the count", tanks([field(), field("button"), count]), "error count-place");
row("separator after the count", tanks([field(), count, field("separator")]));

/* ---- reading and writing ---- */
row("field without ajax-read", unbound([field()]), "error no-read");
row("button without ajax-read", unbound([field("button"), field("separator")]));
row("screens without ajax-read", unbound([{ css: "b" }]).concat(screen("b", [field()])));
row("hidden field without ajax-read", unbound([field("", { remote: 0 })]));
row("field on the start page", [screen("r", [field()])], "error no-read",
    "start page is never read");
row("start page with ajax-read", [{ css: "r", "ajax-read": "r" }], "error no-read");
row("ajax-read without fields", menu({ css: "a", "ajax-read": "r" }), "warning dead-read");
row("edit without ajax-write", unbound([field("boolean", { accessLvl: 6 })], { "ajax-read": "r" }),
    "error no-write");
row("quotes in ajax-read", a([field()], { "ajax-read": 'get "a b"' }), "error quotes",
    '<get "a b">');
row("quotes in ajax-write", a([field()], { "ajax-write": "set 'a'" }), "error quotes");

/* ---- attributes ---- */
row("accessLvl with a letter missing", one("boolean", { acessLvl: 6 }),
    "warning misspelled-attribute", 'a: A > A: "acessLvl" has no effect; write "accessLvl"');
row("accessLvl in full", one("boolean", { accessLevel: 6 }), "warning misspelled-attribute");
row("ajax-read without hyphen", unbound([field()], { ajaxRead: "r" }),
    "warning misspelled-attribute, error no-read", 'write "ajax-read"');
row("remote in capitals, in a reference",
    [{ css: "r", screens: [{ css: "a", Remote: 1 }] }, screen("a", [field()])],
    "warning misspelled-attribute", 'write "remote"');
row("min in capitals", one("slider", { MIN: 0, max: 9, step: 1 }), "warning misspelled-attribute");
row("dbvalues", list(["a"], null, { db_values: [1] }), "warning misspelled-attribute",
    'write "dbValues"');
row("swapped letters", one("edit", { validation: "N3", rnage: [0, 9] }),
    "warning misspelled-attribute, error no-range", 'write "range"');
row("attributes of browsers", one("slider", { min: 0, max: 9, step: 1, mix: 1, cls: "x", value: 5,
    refresh: 9, tooltip: "a", screen: "a", remove: 1, tyre: "front", onClick: function () {},
    accessKey: "1", remotes: "x" }));
row("attributes of other kinds",
    one("label", { value: ["a"], ranges: [0], stepp: 1, validator: "x" }));
row("attribute beside the right one", list(["a"], null, { value: [0] }));
row("unknown inputType", one("Edit"), "error unknown-input-type", '"inputType" "Edit" is unknown');

/* ---- lists and sliders ---- */
row("list without values", list(), "error no-values");
row("selectlabel without values", one("selectlabel"), "error no-values");
row("fewer dbValues", list(["a", "b"], [1]), "error value-count", '2 "values" but 1 "dbValues"');
row("equal dbValues", list(["a", "b", "k"], [1, 2, "1"]), "error equal-values",
    'has "1" more than once');
row("integer beside dbValues", list(["a"], [1], { integer: true }), "warning integer-list");
row("integer without dbValues", list(["a"], null, { integer: true }));
row("slider of one value", slider(-1, -1, 1));
row("slider that stands still", slider(0, 4, 0), "error slider", "from 0 to 4 by 0");
row("slider upside down", slider(5, 4, 1), "error slider");
row("slider that misses its max", slider(-1, 9, 3), "warning slider-step",
    'lead to 8, not to "max" 9');
row("slider that meets its max", slider(-1, 8, 3));

/* ---- rules ---- */
row("number rule", edit("N3", [-99, 500]));
row("range of one number", edit("N3", [-99, -99]));
row("range wider than its rule", edit("N3", [-100, 5000]),
    "warning narrow-rule, warning narrow-rule",
    'the rule "N3" has no room for 5000');
row("no rule", one("edit"), "error no-validation");
row("no rule, allowed", one("edit", { i18n: "none", checkIgnore: "no-validation untranslated" }));
row("number rule without range", edit("N3"), "error no-range", 'without "range" the rule "N3"');
row("decimal rule", edit("N5.2", [0, 9]), "error dead-rule", 'the rule "N5.2" is for decimals');
["FEAT", "DATE.HHMM", "GPS", "IPV4"].forEach(function (rule) {
    row("rule " + rule, edit(rule), "error dead-rule", "works in the web interface");
});
row("rule without length", edit("C"), "error dead-rule", "no whole number");
row("rule with a letter too many", edit("N3x", [0, 9]), "error dead-rule", "no whole number");
row("rule in small letters", edit("n3", [0, 9]), "error dead-rule", '"n3" is unknown');
row("rule without room", edit("C-1"), "error dead-rule", "leaves nothing to type");
row("range upside down", edit("N3", [9, 0]), "error dead-rule", "leaves nothing to type");
row("range beyond its rule", edit("N3", [1000, 2000]), "error dead-rule", "leaves nothing to type");
row("dead rule, read-only", one("edit", { remote: 2, validation: "IPV4" }));
row("dead rule, above all access levels", one("edit", { accessLvl: 7 }));

/* ---- texts ---- */
row("label without text", one("", { i18n: "none" }), "warning untranslated",
    'label "none" has no translation');
row("option without text", list(["none", "a"]), "warning untranslated", 'option text "none"');
row("control character", one("", { i18n: "x%1\n%3" }), "warning untranslated, warning unshowable",
    "has the character U+000A");
row("character beyond Latin-1", list(["smile"]), "warning unshowable", "U+263A");
row("empty label", one("", { i18n: "" }), "warning no-label");
row("label that reaches the values", one("", { i18n: "wide" }), "warning wide-label", "6 columns");

/* ---- calls of the tool ---- */
device("answer that fits", a([field(), field("separator"), field("button"), field()]),
    { r: [1, "x"] });
device("empty answer", one(), { r: "" }, "error no-array", "<r> printed nothing");
device("cut answer", one(), { r: "[1" }, "error no-array", "no JSON, line 2, column 1");
device("object", one(), { r: {} }, "error no-array", "JSON that is no array");
device("missing value", a([field(), field("button"), field("", { i18n: "b" })]), { r: [1] },
    "error few-values", 'has 1 of 2 values: from "B" on');
device("surplus value", one(), { r: [1, 2] }, "error many-values", "2 values instead of 1");
device("hidden screen", a([field("boolean")], { remote: 0 }), { r: [1] });
device("missing value of a hidden screen", a([field()], { remote: 0 }), { r: [] },
    "error few-values");
device("unknown seal status", one(), { r: [1], get_menu_electronic_seal_status: [false] },
    "error seal-status", "is [false]");
device("open seal", one(), { r: [1], get_menu_electronic_seal_status: ["i18n_wm_false"] });
device("no version", one(), { r: [1], "--version": "/1.0" }, "warning no-tool-version");

/* ---- numbers of compartments ---- */
device("two compartments", tanks([count]), { r: [2], "r 0": [1], "r 1": [1] });
device("count that the tool does not know in one argument",
    menu(screen("btnParameterTruckSetup", [count], { "ajax-read": "g t" })), {},
    "error no-array, error no-array", "<'g t'> printed nothing");
device("number without its entry", tanks([field()]), { r: [1] }, "error no-count");
device("missing value of the second", tanks([count]), { r: [2], "r 0": [1], "r 1": [] },
    "error few-values", "kModifyDo: K > C 2: ");
[-1, 1000, 1.5, true, "x", null].forEach(function (number) {
    device("number " + number, tanks([count]), { r: [number], "r 0": [1], "r 1": [1] },
        "error count-value", "is " + JSON.stringify(number));
});

/* ---- values: of a field, each of the list in turn ---- */
function values(kind, more, list, problem, says) {
    list.forEach(function (value) {
        device(kind + " " + JSON.stringify(more) + " of " + JSON.stringify(value), one(kind, more),
            { r: [value] }, problem, says);
    });
}
var codes = { values: ["a", "b"], dbValues: [1, "B"] }, places = { values: ["a", "b"] };
values("dropdown", codes, [1, "1", "B"]);
values("dropdown", codes, ["x", "b", null, 2], "error list-value", 'is none of its "dbValues"');
values("selectlabel", places, [0, "1", 1.4]);
values("selectlabel", places, [2, -1, "x", true, null, 5000000000], "error list-value",
    "from 0 to 1");
values("selectlabel", { integer: true }, [7]);
values("boolean", {}, [true, false]);
values("boolean", {}, [1, "true", null], "error boolean-value", "is no truth value");
values("slider", { min: -1, max: 9, step: 1 }, [-1, 9]);
values("slider", { min: -1, max: 9, step: 1 }, [-2, 10, "x", null], "error slider-value",
    "no number from -1 to 9");
values("edit", { validation: "C3" }, ["abc", 123, null]);
values("edit", { validation: "C3" }, ["abcd", 1000000.0], "error edit-value",
    'its rule "C3" refuses the value ');
values("edit", { validation: "C3", remote: 2 }, ["abcd"]);
values("edit", { validation: "N3", range: [0, 500] }, [0, "500"]);
values("edit", { validation: "N3", range: [0, 500] }, [501, -1, "x", null], "error edit-value");
values("edit", { validation: "IPV4", checkIgnore: "dead-rule" }, ["10.0.0.1"]);
values("label", {}, ["i18n_a", "i18n_datetime_today", "i18n_gps_lat_48 N", "\u00e4", 1.5, null]);
values("label", {}, ["i18n_none"], "warning untranslated", 'the value "none" has no translation');
values("label", {}, ["\u263a"], "warning unshowable", "U+263A");
values("input", {}, [[1, "x"], {}], "warning unshowable", "shows nothing");
values("label", { checkIgnore: "unshowable" }, [{}]);

/* ---- interfaces: the answer to their query, for TAG to both of them ---- */
function numbers(count) { return Array(count + 1).join("1").split("").map(Number); }
function diagnose(css, answer, says, tag) {
    var answers = {}, words = "get_menu_service_diagnose_" + css.toLowerCase() + "_interfaces";
    answers[words + (css == "Tag" ? " 0" : "")] = answer;
    answers[words + " 1"] = tag;
    var name = "btnServiceDiagnose" + css + "Interfaces";
    var entry = { css: name, i18n: "a", type: "status", remote: 1 };
    device(css + " " + JSON.stringify([answer, tag]), menu(entry), answers,
        says && "error interface-answer", says);
}
diagnose("Spd", [["1", "A", numbers(20)], ["1", "A", []], "off"]);
diagnose("Spd", []);
diagnose("Spd", ["a", "b", "c", "d", "e"], "more than 4 interfaces");
diagnose("Spd", [["1", "A", numbers(21)]],
    "interface 1: element 3 is no array of up to 20 numbers");
diagnose("Spd", ["off", ["1", "A", ["x"]]], "interface 2: element 3");
diagnose("Spd", [["1", "A"]], "element 3");
diagnose("Spd", [[[1], "A", []]], "begin with two versions");
diagnose("Spd", [null], "neither an array nor a text");
diagnose("IO", [["1", "A", numbers(2), numbers(8)]]);
diagnose("IO", [["1", "A", numbers(3), []]], "up to 2 numbers");
diagnose("Wetleg", [["1", "A", numbers(6), numbers(2)]]);
diagnose("Wetleg", [["1", "A", numbers(6), numbers(3)]], "element 4 is no array of up to 2");
diagnose("Tag", ["1", "A"], "", [1, "x", null]);
diagnose("Tag", [{}], "versions or a message", []);
diagnose("Tag", ["off"], "up to 9 texts and numbers", [[1]]);
diagnose("Tag", ["1", "A"], "up to 9", numbers(10));
diagnose("As", ["1", "A", [["s", "p"]]]);
diagnose("As", ["off"]);
diagnose("As", ["1", "A", ["s"]], "[sensor, product]");
diagnose("Level", []);
