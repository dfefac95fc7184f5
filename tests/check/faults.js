/*
 * Menu definitions, and what the checker reports of them: the name of the row, the screens, severity
 * and name of each problem in their order, and a part of the report's text where it matters. Rows
 * without problems are the neighbours of those that have some.
 */
var Settings = { setupStructureVersion: 1 }, rows = [];

function row(name, screens, problems, says) {
    rows.push({ name: name, screens: screens, problems: problems || [], says: says || "" });
}
function extend(target, more) {
    for (var key in more)
        target[key] = more[key];
    return target;
}
function field(kind, more) {
    return extend(kind ? { i18n: "a", inputType: kind } : { i18n: "a" }, more);
}
function screen(css, entries, more) {
    return extend({ css: css, "ajax-read": "r", "ajax-write": "w", screens: entries }, more);
}
// The start page leads to all the others.
function menu() {
    var others = [].slice.call(arguments);
    var start = { css: "r", screens: others.map(function (other) { return { css: other.css }; }) };
    return [start].concat(others);
}
function a(entries, more) { return menu(screen("a", entries, more)); }
function one(kind, more) { return a([field(kind, more)]); }
function edit(rule, range) { return one("edit", extend({ validation: rule }, range && { range: range })); }
function list(values, codes, more) {
    return one("dropdown", extend(extend({ values: values }, codes && { dbValues: codes }), more));
}
function slider(min, max, step) { return one("slider", { min: min, max: max, step: step }); }
function tanks(count, more) {
    var list = extend({ css: "k", type: "compBtnA", remote: 1, screens: {} }, more);
    return menu(list, screen("btnParameterTruckSetup", count)).concat(screen("kModifyDo", [field()]));
}
var count = field("label", { i18n: "truck_setup_compartments" });

/* ---- screens ---- */
row("start page alone", [{ css: "r" }]);
row("no screens", [], ["error script"], "defines no screens");
row("reference to nothing", menu({ css: "a", screens: [{ css: "gone" }] }), ["error dangling-reference"],
    'error: a: A: it leads to "gone", which does not exist');
row("screen that nothing leads to", [{ css: "r" }, { css: "a", screens: [{ css: "gone" }] }],
    ["warning unreached", "error dangling-reference"], "warning: a: A: nothing leads to screen number 1");
row("screen without a name", [{ css: "r" }, {}], ["warning unreached"], "warning: : : ");
row("two screens of one css", menu(screen("a", [field()]), screen("a", [field()])), ["error duplicate-css"]);
row("start page leads to itself", menu({ css: "r" }), ["error self-reference", "error duplicate-css"]);
row("screen leads back", [{ css: "r", screens: [{ css: "a" }] }, { css: "a", screens: [{ css: "b" }] },
    { css: "b", screens: { x: { css: "a" } } }],
    ["error self-reference"], 'error: b: A > B: it leads back to "a"');
row("screen hidden by omission", a([field()], { type: "btn" }), ["warning hidden-read"]);
row("screen hidden on purpose", a([field()], { type: "btn", remote: 0 }));
row("screen hidden by omission, without values", menu({ css: "a", type: "btn", screens: [field()] }));
row("screen hidden by its css", a([field("edit")], { css: "aTODO" }));
row("unknown type", a([field()], { type: "Btn", remote: 1 }), ["warning unknown-type"], '"type" "Btn" is unknown');
row("interface screen without type", menu({ css: "btnServiceDiagnoseAsInterfaces", i18n: "a" }),
    ["error interface-type"]);
row("interface screen", menu({ css: "btnServiceDiagnoseAsInterfaces", i18n: "a", type: "status", remote: 1 }));

/* ---- compartments and meters ---- */
row("compartments", tanks([count]));
row("meters without a screen to repeat", menu({ css: "k", type: "meterBtnA", remote: 1, screens: [] },
    screen("btnParameterInterfacesCanFasWm", [field("label", { i18n: "interfaces_can_fas_wm_fpi" })])),
    ["error no-template"], 'leads to "kModifyDo"');
row("count without its screen", tanks([count]).filter(function (s) { return s.css[0] != "b"; }),
    ["error dangling-reference", "error no-count"], 'add the screen "btnParameterTruckSetup"');
row("count without its entry", tanks([field()]), ["error no-count"], '"truck_setup_compartments"');
row("separator before the count", tanks([field("separator"), count]), ["error count-place"]);
row("button before the count", tanks([field(), field("button"), count]), ["error count-place"]);
row("separator after the count", tanks([field(), count, field("separator")]));

/* ---- reading and writing ---- */
row("field without ajax-read", menu({ css: "a", screens: [field()] }), ["error no-read"]);
row("button without ajax-read", menu({ css: "a", screens: [field("button"), field("separator")] }));
row("screens without ajax-read", menu({ css: "a", screens: [{ css: "b" }] }).concat(screen("b", [field()])));
row("hidden field without ajax-read", menu({ css: "a", screens: [field("", { remote: 0 })] }));
row("field on the start page", [screen("r", [field()])], ["error no-read"], "start page is never read");
row("start page with ajax-read", [{ css: "r", "ajax-read": "r" }], ["error no-read"]);
row("ajax-read without fields", menu({ css: "a", "ajax-read": "r" }), ["warning dead-read"]);
row("field with ajax-read", one("", { "ajax-read": "r" }), ["warning dead-read"]);
row("edit without ajax-write", menu({ css: "a", "ajax-read": "r", screens: [field("boolean", { accessLvl: 6 })] }),
    ["error no-write"]);
row("quotes in ajax-read", a([field()], { "ajax-read": 'get "a b"' }), ["error quotes"], '<get "a b">');
row("quotes in ajax-write", a([field()], { "ajax-write": "set 'a'" }), ["error quotes"]);

/* ---- attributes ---- */
row("accessLvl with a letter missing", one("boolean", { acessLvl: 6 }), ["warning misspelled-attribute"],
    'error: a: A > A: "acessLvl" has no effect; write "accessLvl"'.replace("error", "warning"));
row("accessLvl in full", one("boolean", { accessLevel: 6 }), ["warning misspelled-attribute"]);
row("ajax-read without hyphen", menu({ css: "a", screens: [field()], ajaxRead: "r" }),
    ["warning misspelled-attribute", "error no-read"], 'write "ajax-read"');
row("remote in capitals, in a reference", [{ css: "r", screens: [{ css: "a", Remote: 1 }] }, screen("a", [field()])],
    ["warning misspelled-attribute"], 'write "remote"');
row("min in capitals", one("slider", { MIN: 0, max: 9, step: 1 }), ["warning misspelled-attribute"]);
row("dbvalues", list(["a"], null, { db_values: [1] }), ["warning misspelled-attribute"], 'write "dbValues"');
row("swapped letters", one("edit", { validation: "N3", rnage: [0, 9] }),
    ["warning misspelled-attribute", "error no-range"], 'write "range"');
row("attributes of browsers", one("slider", { min: 0, max: 9, step: 1, mix: 1, cls: "x", value: 5, icon: "x",
    refresh: 9, tooltip: "a", screen: "a", remove: function () {}, onClick: function () {} }));
row("attributes of other kinds", one("label", { value: ["a"], ranges: [0], stepp: 1, validator: "x" }));
row("attribute beside the right one", list(["a"], null, { value: [0] }));
row("unknown inputType", one("Edit"), ["error unknown-input-type"], '"inputType" "Edit" is unknown');

/* ---- lists and sliders ---- */
row("list", list(["a", "10"], [1, 2]));
row("list without values", list(), ["error no-values"]);
row("selectlabel without values", one("selectlabel"), ["error no-values"]);
row("selectlabel that shows the number", one("selectlabel", { integer: true }));
row("fewer dbValues", list(["a", "b"], [1]), ["error value-count"], '2 "values" but 1 "dbValues"');
row("equal dbValues", list(["a", "b", "k"], [1, 2, "1"]), ["error equal-values"], 'has "1" more than once');
row("integer beside dbValues", list(["a"], [1], { integer: true }), ["warning integer-list"]);
row("integer without dbValues", list(["a"], null, { integer: true }));
row("slider of one value", slider(-1, -1, 1));
row("slider that stands still", slider(0, 4, 0), ["error slider"], "from 0 to 4 by 0");
row("slider upside down", slider(5, 4, 1), ["error slider"]);
row("slider that misses its max", slider(-1, 9, 3), ["warning slider-step"], 'lead to 8, not to "max" 9');
row("slider that meets its max", slider(-1, 8, 3));

/* ---- rules ---- */
row("text rule", edit("C5"));
row("number rule", edit("N3", [-99, 500]));
row("range of one number", edit("N3", [-99, -99]));
row("range wider than its rule", edit("N3", [-100, 5000]), ["warning narrow-rule", "warning narrow-rule"],
    'the rule "N3" has no room for 5000');
row("no rule", one("edit"), ["error no-validation"]);
row("no rule, allowed", one("edit", { i18n: "none", checkIgnore: "no-validation untranslated" }));
row("number rule without range", edit("N3"), ["error no-range"], 'without "range" the rule "N3"');
row("decimal rule", edit("N5.2", [0, 9]), ["error dead-rule"], 'the rule "N5.2" is for decimals');
["FEAT", "DATE.HHMM", "GPS", "IPV4"].forEach(function (rule) {
    row("rule " + rule, edit(rule), ["error dead-rule"], "works in the web interface");
});
row("rule without length", edit("C"), ["error dead-rule"], "no whole number");
row("rule with a letter too many", edit("N3x", [0, 9]), ["error dead-rule"], "no whole number");
row("rule in small letters", edit("n3", [0, 9]), ["error dead-rule"], '"n3" is unknown');
row("rule without room", edit("C-1"), ["error dead-rule"], "leaves nothing to type");
row("range upside down", edit("N3", [9, 0]), ["error dead-rule"], "leaves nothing to type");
row("range beyond its rule", edit("N3", [1000, 2000]), ["error dead-rule"], "leaves nothing to type");
row("dead rule, read-only", one("edit", { remote: 2, validation: "IPV4" }));
row("dead rule, above all access levels", one("edit", { accessLvl: 7 }));

/* ---- texts ---- */
row("separator", one("separator"));
row("label without text", one("", { i18n: "none" }), ["warning untranslated"], 'label "none" has no translation');
row("option without text", list(["none", "a"]), ["warning untranslated"], 'option text "none"');
row("control character", one("", { i18n: "x%1\n%3" }), ["warning untranslated", "warning unshowable"],
    "has the character U+000A");
row("character beyond Latin-1", list(["smile"]), ["warning unshowable"], "U+263A");
row("empty label", one("", { i18n: "" }), ["warning no-label"]);
row("label that reaches the values", one("", { i18n: "wide" }), ["warning wide-label"], "6 columns");
