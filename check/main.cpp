// The checker of menu definitions, for those who write them.
#include "check/FileFault.h"
#include "check/MenuCheck.h"
#include "locale/CTranslationHandler.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <Version.h>

#include <cstdio>

namespace {

enum ExitStatus { Clean, HasProblems, CannotLoad };

const QString description =
    QStringLiteral("Reports what is wrong with the menu definition of a truck controller's web "
                   "interface,\none problem a line. The backend tool is never run.\n\n"
                   "Exit status: 0 no problem, 1 problems, 2 wrong usage or files that cannot be "
                   "loaded.");

void print(std::FILE *file, const QString &text)
{
    std::fprintf(file, "%s\n", text.toLocal8Bit().constData());
}

void printLines(const QStringList &lines)
{
    for (const QString &line : lines)
        print(stdout, line);
}

int failure(const QString &text)
{
    print(stderr, QStringLiteral("dravikon-menu-check: ") + text);
    return CannotLoad;
}

int check(const DevicePaths &paths, bool wantsTree)
{
    const QString fault = fileFault(paths);
    if (!fault.isEmpty())
        return failure(QStringLiteral("cannot load ") + fault);
    CTranslationHandler::setInstanceRoot(paths.webRoot);
    LoadedMenu menu(paths);
    if (wantsTree && !menu.root->children.empty()) {
        printLines(menuOutline(menu));
        return Clean;
    }
    const QStringList problems = menuProblems(menu);
    printLines(problems);
    return problems.isEmpty() ? Clean : HasProblems;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    const QCommandLineOption webRoot(QStringLiteral("web-root"),
        QStringLiteral("Folder of the web interface, with scripts/settings.js and locales/."),
        QStringLiteral("DIR"), DevicePaths().webRoot);
    const QCommandLineOption tree(QStringLiteral("tree"),
        QStringLiteral("Print the menu instead, everything opened and without values, with one "
                       "compartment and one meter, as with the electronic seal open. Status 0."));
    const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Print this text."));
    const QCommandLineOption version(
        QStringLiteral("version"), QStringLiteral("Print the version."));
    parser.addOptions({ webRoot, tree, help, version });

    if (!parser.parse(QCoreApplication::arguments()))
        return failure(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return failure(QStringLiteral("unexpected ") + parser.positionalArguments().first());
    if (parser.isSet(help)) {
        print(stdout, parser.helpText());
        return Clean;
    }
    if (parser.isSet(version)) {
        print(stdout, QStringLiteral("dravikon-menu-check ") + consoleVersion);
        return Clean;
    }
    DevicePaths paths { parser.value(webRoot) };
    paths.backendTool.clear();
    return check(paths, parser.isSet(tree));
}
