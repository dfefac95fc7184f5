#include "bench/MenuDefinitions.h"

#include <QByteArrayList>
#include <QVector>

namespace {

QByteArray field(int number)
{
    static const char *const kinds[] = { "inputType: 'edit', validation: 'C20'",
        "inputType: 'boolean', values: ['off', 'on']",
        "inputType: 'dropdown', values: ['first', 'second', 'third']", "inputType: 'label'" };
    const QByteArray digits = QByteArray::number(number);
    return "{ i18n: 'field_" + digits + "', remote: 1, " + kinds[number % 4] + " }";
}

QByteArray reference(int screen)
{
    return "{ css: 'screen" + QByteArray::number(screen) + "', type: 'btn', remote: 1 }";
}

QByteArray screen(int number, const QByteArrayList &entries)
{
    const QByteArray digits = QByteArray::number(number);
    return "{ css: 'screen" + digits + "', i18n: 'label_" + digits
        + "', 'ajax-read': 'get_menu group_" + digits + "', screens: [" + entries.join(", ")
        + "] }";
}

QByteArray scriptWith(const QByteArrayList &screens)
{
    return "var Settings = { setupStructureVersion: 7, settings: [\n" + screens.join(",\n")
        + "\n] };\n";
}

} // namespace

QByteArray scriptWithScreens(int count)
{
    const int groups = (count - 1) / 10;
    QByteArrayList ofRoot;
    QVector<QByteArrayList> ofGroup(groups + 1);
    for (int number = 1; number <= groups; ++number)
        ofRoot += reference(number);
    for (int number = groups + 1; number < count; ++number)
        ofGroup[1 + number % groups] += reference(number);

    QByteArrayList screens { screen(0, ofRoot) };
    for (int number = 1; number <= groups; ++number)
        screens += screen(number, ofGroup.at(number));
    for (int number = groups + 1; number < count; ++number)
        screens += screen(number, { field(number), field(number + 1), field(number + 2) });
    return scriptWith(screens);
}

QByteArray scriptWithFields(int count)
{
    QByteArrayList fields;
    for (int number = 0; number < count; ++number)
        fields += field(number);
    return scriptWith({ screen(0, fields) });
}
