#include "check/WriteBack.h"

#include "check/CallWords.h"
#include "check/QuietMessages.h"
#include "check/Report.h"
#include "check/ScreenFields.h"
#include "json/JsonWriter.h"
#include "menu/TreeBuilder.h"

#include <QLocale>

namespace {

struct WrittenScreen {
    TreeViewItem *item;
    Fields fields; ///< those with a value
    QVariantList values; ///< as last read
    QSet<int> moving; ///< the places, from 0, of values that change by themselves
};

// Different for different values, decimals with no more digits than that needs.
QString exact(const QVariantList &values, int place)
{
    if (place >= values.size())
        return QStringLiteral("nothing");
    const auto json = jsonText(values.at(place), QLocale::FloatingPointShortest);
    return QString::fromLatin1(json.value_or(QByteArray()));
}

QVector<int> changedPlaces(const WrittenScreen &screen, const QVariantList &before)
{
    QVector<int> places;
    for (int place = 0; place < screen.fields.size(); ++place) {
        if (exact(before, place) != exact(screen.values, place) && !screen.moving.contains(place))
            places += place;
    }
    return places;
}

class WriteBack {
public:
    WriteBack(const DevicePaths &paths, CallTrace &trace, const ToolCalls::Progress &progress)
        : menu(paths,
            [=, &trace](const QStringList &arguments) {
                if (!isWriting && words.mayWrite(arguments))
                    return QByteArray();
                if (progress)
                    progress(++runs, arguments);
                call = arguments;
                return answer = trace.run(paths.backendTool, arguments).output;
            })
        , handler(menu.handler)
        , words(menu)
        , report(menu)
    {
    }

    WriteBackReport run()
    {
        menu.repeatScreens(handler.readCounts(menu.screens));
        find(*menu.root);
        for (WrittenScreen &screen : screens)
            read(screen);
        for (WrittenScreen &screen : screens) {
            const QVariantList before = read(screen);
            for (const int place : changedPlaces(screen, before))
                screen.moving += place;
        }
        handler.updateAccessLevel();
        int sealed = 0;
        for (WrittenScreen &screen : screens) {
            if (const TreeViewItem *const field = changeableField(handler, *screen.item))
                write(screen, *field);
            else
                ++sealed;
        }
        return { report.lines(),
            QStringLiteral("%1 of %2 screens written, %3 need the electronic seal open")
                .arg(written)
                .arg(screens.size())
                .arg(sealed) };
    }

private:
    // Those that the console could write with the seal open.
    void find(TreeViewItem &item)
    {
        if (item.parentItem && !handler.isVisible(item))
            return;
        const auto key = qMakePair(item.definition.objectId(), item.index);
        if (item.parentItem && !handler.readArguments(item).isEmpty()
            && changeableField(handler, item) && !found.contains(key)) {
            found.insert(key);
            screens.push_back({ &item, fieldsWithValue(handler, item), {}, {} });
        }
        for (const auto &child : item.children)
            find(*child);
    }

    // Returns the former values.
    QVariantList read(WrittenScreen &screen)
    {
        const QStringList arguments = handler.readArguments(*screen.item);
        return std::exchange(screen.values, handler.scriptHelper().read(arguments, true));
    }

    void write(WrittenScreen &screen, const TreeViewItem &field)
    {
        if (screen.values.size() < screen.fields.size()) {
            add(*screen.item,
                error("not-written",
                    "the answer has %1 of %2 values, and those that it lacks would be written as "
                    "null; answer with all",
                    screen.values.size(), screen.fields.size()));
            return;
        }
        ++written;
        handler.assignItemValues(*screen.item, screen.values);
        isWriting = true;
        if (!handler.writeItemValues(field)) {
            add(*screen.item,
                error("refused-write", "<%1> was refused with <%2>; take what was read",
                    shownCall(call), QString::fromUtf8(answer).trimmed()));
        }
        isWriting = false;
        compare(screen);
    }

    void compare(const WrittenScreen &writtenOne)
    {
        for (WrittenScreen &screen : screens) {
            const QVariantList before = read(screen);
            for (const int place : changedPlaces(screen, before)) {
                const QString was = exact(before, place);
                const QString is = exact(screen.values, place);
                const Finding ofValue = error("changed-value",
                    "value %1 was written as %2 and is read as %3; keep what is written", place + 1,
                    was, is);
                const Finding ofScreen = error("changed-screen",
                    "its write changes value %1 of <%2> from %3 to %4; keep the screens apart",
                    place + 1, shownCall(handler.readArguments(*screen.item)), was, is);
                if (&screen == &writtenOne)
                    add(*screen.fields.at(place), ofValue);
                else
                    add(*writtenOne.item, ofScreen);
            }
        }
    }

    void add(const TreeViewItem &item, const Finding &finding)
    {
        report.add(item, { finding }, item.index);
    }

    int runs = 0; ///< of the tool
    QStringList call; ///< the last one
    QByteArray answer; ///< to that call
    bool isWriting = false;
    LoadedMenu menu;
    TreeViewItemHandler &handler;
    const CallWords words;
    Report report;
    std::vector<WrittenScreen> screens; ///< that the console can write with the seal open
    QSet<QPair<qint64, int>> found; ///< their definitions and numbers
    int written = 0;
};

} // namespace

WriteBackReport writeBack(
    const DevicePaths &paths, CallTrace &trace, const ToolCalls::Progress &progress)
{
    const QuietMessages quiet;
    return WriteBack(paths, trace, progress).run();
}
