#include "check/DeviceCheck.h"

#include "check/Answer.h"
#include "check/CallFindings.h"
#include "check/CallWords.h"
#include "check/CountFindings.h"
#include "check/InterfaceFindings.h"
#include "check/QuietMessages.h"
#include "check/Report.h"
#include "check/ScreenFields.h"
#include "check/ValueFindings.h"
#include "menu/CountEntry.h"
#include "menu/TreeBuilder.h"

namespace {

const QStringList versionCall { QStringLiteral("--version") };

// The numbers that the list query of a kind is asked with; only TAG passes them on. The screen of
// the Level interfaces is a placeholder and reads nothing.
QVector<int> tagNumbers(InterfaceKind kind)
{
    if (kind == NoInterface || kind == LevelInterface)
        return {};
    return kind == TagInterface ? QVector<int> { 0, 1 } : QVector<int> { 0 };
}

class DeviceCheck {
public:
    DeviceCheck(const LoadedMenu &menu, const ToolCalls &calls, Report &report)
        : handler(menu.handler)
        , menu(menu)
        , calls(calls)
        , report(report)
    {
    }

    void run()
    {
        if (!calls.fault().isEmpty()) {
            report.add(
                calls.tool, { error("no-tool", "the tool cannot be started: %1", calls.fault()) });
            return;
        }
        report.add(calls.tool, versionFindings(calls, versionCall));
        checkSeal();
        for (const CountEntry &entry : { compartmentCount, meterCount })
            checkCount(entry);
        visit(*menu.root, true);
    }

private:
    // Reports the call if it was made. Returns its answer if it has one.
    template <typename Place, typename... Instance>
    std::optional<QVariantList> check(
        const QStringList &call, const Place &place, Instance... instance)
    {
        const ToolCall *const made = calls.find(call);
        if (!made)
            return std::nullopt;
        report.add(place, callFindings(calls, call), instance...);
        return answerOf(*made);
    }

    void checkSeal()
    {
        if (const auto answer = check(TreeViewItemHandler::sealQuery(), calls.tool))
            report.add(calls.tool, sealFindings(*answer));
    }

    void checkCount(const CountEntry &entry)
    {
        const int screen = menu.screens.find(QLatin1String(entry.screen));
        if (screen < 0)
            return;
        const TreeViewItem item(menu.screens.at(screen), {}, nullptr, -1, 0);
        const int place = positionOf(entry, item.definition, handler.names());
        if (place < 0)
            return;
        if (const auto answer = check({ handler.readBinding(item).value_or(QString()) }, item))
            report.add(item, countValueFindings(*answer, place, QLatin1String(entry.field)));
    }

    void visit(const TreeViewItem &item, bool isShown)
    {
        isShown = isShown && (!item.parentItem || handler.isVisible(item));
        if (item.parentItem && !item.children.empty())
            checkScreen(item, isShown);
        if (isShown && item.children.empty())
            checkInterface(item);
        for (const auto &child : item.children)
            visit(*child, isShown);
    }

    void checkScreen(const TreeViewItem &screen, bool isShown)
    {
        const auto answer = check(handler.readArguments(screen), screen, screen.index);
        if (!answer)
            return;
        report.add(screen, lengthFindings(handler, screen, *answer), screen.index);
        if (isShown)
            checkValues(screen, answer->size());
    }

    // Entries beyond the last of `count` values have none to check.
    void checkValues(const TreeViewItem &screen, int count)
    {
        for (const TreeViewItem *const field : fieldsWithValue(handler, screen).mid(0, count)) {
            if (handler.isVisible(*field))
                report.add(*field, valueFindings(handler, *field), field->index);
        }
    }

    void checkInterface(const TreeViewItem &item)
    {
        const InterfaceKind kind = handler.diagnoseScreen(item);
        for (const int tagNumber : tagNumbers(kind)) {
            if (const auto answer = check(TreeViewItemHandler::listQuery(kind, tagNumber), item))
                report.add(item, interfaceAnswerFindings(kind, tagNumber, *answer));
        }
    }

    const TreeViewItemHandler &handler;
    const LoadedMenu &menu;
    const ToolCalls &calls;
    Report &report;
};

// Asks what the interface screens from `item` down ask when they are opened.
void readInterfaces(TreeViewItemHandler &handler, const TreeViewItem &item)
{
    if (item.parentItem && !handler.isVisible(item))
        return;
    const InterfaceKind kind = handler.diagnoseScreen(item);
    if (item.children.empty()) {
        for (const int tagNumber : tagNumbers(kind))
            handler.interfaceList(kind, tagNumber);
    }
    for (const auto &child : item.children)
        readInterfaces(handler, *child);
}

} // namespace

void readDevice(LoadedMenu &menu, ToolCalls &calls, DeviceExtent extent)
{
    const CallWords words(menu);
    calls.withhold([words](const QStringList &arguments) { return words.mayWrite(arguments); });
    const QuietMessages quiet;
    menu.repeatScreens(menu.handler.readCounts(menu.screens));
    expandAll(*menu.root);
    menu.handler.refreshValues(*menu.root);
    if (extent == DeviceExtent::Everything) {
        menu.handler.scriptHelper().run(versionCall);
        readInterfaces(menu.handler, *menu.root);
    }
}

QStringList deviceProblems(LoadedMenu &menu, const ToolCalls &calls)
{
    // Includes what can be changed only while the seal is open.
    menu.handler.setAccessLevel(TreeViewItemHandler::openAccessLevel);
    Report report(menu);
    DeviceCheck(menu, calls, report).run();
    return report.lines();
}

QStringList failedCalls(const ToolCalls &calls)
{
    if (!calls.fault().isEmpty())
        return { calls.tool + QStringLiteral(" cannot be started: ") + calls.fault() };
    QStringList lines;
    for (const auto &call : calls.all()) {
        for (const Finding &finding : callFindings(calls, call.first)) {
            if (finding.severity == Severity::Error)
                lines += finding.text;
        }
    }
    return lines;
}

QStringList callSummary(const ToolCalls &calls)
{
    constexpr int shownCalls = 5;
    if (calls.all().empty())
        return {};
    std::multimap<qint64, QString, std::greater<>> slowest;
    qint64 total = 0;
    for (const auto &[arguments, call] : calls.all()) {
        slowest.emplace(call.durationUs, shownCall(arguments));
        total += call.durationUs;
    }
    QStringList lines { QStringLiteral("%1 calls in %2 s, the slowest:")
                            .arg(slowest.size())
                            .arg(double(total) / 1e6, 0, 'f', 1) };
    for (const auto &[durationUs, call] : slowest) {
        if (lines.size() <= shownCalls)
            lines += QStringLiteral("%1 s  ").arg(double(durationUs) / 1e6, 9, 'f', 3) + call;
    }
    return lines;
}
