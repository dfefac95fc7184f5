// The files of a device in a temporary directory, laid out as on the controller.
#pragma once

#include <QString>
#include <QTemporaryDir>

class DeviceFiles {
public:
    DeviceFiles();

    /// Writes a file, its path below the directory; its folders are made. Failing to ends the
    /// benchmark.
    void write(const QString &path, const QByteArray &content);

    /// The path of a file below the directory.
    QString path(const QString &name) const { return directory.filePath(name); }

    /// The root of the web interface.
    QString webRoot() const { return directory.path(); }
    void writeSettings(const QByteArray &script);
    void writeTranslations(const QByteArray &table);

private:
    QTemporaryDir directory;
};
