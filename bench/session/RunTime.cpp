#include "bench/session/RunTime.h"

#include <QElapsedTimer>
#include <QVector>

#include <cstring>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// QProcess would add its own work to the floor.
double runUs(const QStringList &command)
{
    QByteArrayList words;
    for (const QString &word : command)
        words += word.toLocal8Bit();
    QVector<char *> arguments;
    for (QByteArray &word : words)
        arguments += word.data();
    arguments += nullptr;

    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        qFatal("no pipe: %s", strerror(errno));
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    pid_t process = -1;
    QElapsedTimer timer;
    timer.start();
    const int failure =
        posix_spawn(&process, arguments.first(), &actions, nullptr, arguments.data(), environ);
    if (failure != 0)
        qFatal("cannot run %s: %s", arguments.first(), strerror(failure));
    close(ends[1]);
    char buffer[65536];
    while (read(ends[0], buffer, sizeof buffer) > 0) { }
    waitpid(process, nullptr, 0);
    const double us = double(timer.nsecsElapsed()) / 1000;
    close(ends[0]);
    posix_spawn_file_actions_destroy(&actions);
    return us;
}
