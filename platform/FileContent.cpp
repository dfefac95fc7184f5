#include "platform/FileContent.h"

#include <QFileInfo>

std::optional<QByteArray> fileContent(const QString &path, QString *fault)
{
    const QFileInfo info(path);
    const bool isOther = info.exists() && !info.isFile();
    QFile file(path);
    if (!isOther && file.open(QIODevice::ReadOnly))
        return file.readAll();
    if (fault)
        *fault = isOther ? QStringLiteral("it is no regular file") : file.errorString();
    return std::nullopt;
}
