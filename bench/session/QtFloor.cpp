// The floor of a start: makes a script engine and prints a frame.
// Usage: bench-qt-floor FRAME, where FRAME is the name of a file.
#include <QCoreApplication>
#include <QFile>
#include <QScriptEngine>

#include <unistd.h>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QScriptEngine engine;
    QFile file(QFile::decodeName(argc > 1 ? argv[1] : ""));
    file.open(QIODevice::ReadOnly);
    const QByteArray frame = file.readAll();
    if (write(STDOUT_FILENO, frame.constData(), size_t(frame.size())) != frame.size())
        return 1;
    char key;
    while (read(STDIN_FILENO, &key, 1) > 0 && key != 'q') { }
    return 0;
}
