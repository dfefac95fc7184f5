#include "terminal/KeyText.h"

#include "terminal/Keys.h"

#include <QHash>
#include <QRegularExpression>

static QByteArray keyNamed(const QString &name)
{
    static const QHash<QString, QByteArray> keys { { QStringLiteral("Up"), Key::up },
        { QStringLiteral("Down"), Key::down }, { QStringLiteral("Left"), Key::left },
        { QStringLiteral("Right"), Key::right }, { QStringLiteral("PageUp"), Key::pageUp },
        { QStringLiteral("PageDown"), Key::pageDown }, { QStringLiteral("Return"), Key::enter },
        { QStringLiteral("Escape"), Key::escape }, { QStringLiteral("Backspace"), Key::backspace },
        { QStringLiteral("Redraw"), Key::redraw }, { QStringLiteral("Ctrl-C"), Key::interrupt } };
    return keys.value(name);
}

QString withCharacterCodes(QString text)
{
    static const QRegularExpression code(QStringLiteral("\\\\x([0-9a-f]{2})"));
    for (auto found = code.match(text); found.hasMatch(); found = code.match(text))
        text.replace(found.capturedStart(), 4, QChar(found.captured(1).toUShort(nullptr, 16)));
    return text;
}

std::optional<QByteArrayList> keysFromText(const QString &text)
{
    static const QRegularExpression word(
        QStringLiteral("\\G(?:\"([^\"]*)\"|([\\w-]+)(?:\\*(\\d+))?)(?:\\s+|$)"));
    QByteArrayList keys;
    for (int place = 0; place < text.size();) {
        const QRegularExpressionMatch found = word.match(text, place);
        const QByteArray key = keyNamed(found.captured(2));
        if (!found.hasMatch() || (key.isEmpty() && !found.captured(2).isEmpty()))
            return std::nullopt;
        for (const char byte : withCharacterCodes(found.captured(1)).toLatin1())
            keys += QByteArray(1, byte);
        for (int i = 0; !key.isEmpty() && i < qMax(1, found.captured(3).toInt()); ++i)
            keys += key;
        place = found.capturedEnd();
    }
    return keys;
}
