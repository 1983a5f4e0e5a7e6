// Saves a scene where that goes wrong, for tst_SaveFaults, which kills it or reads what it prints:
//   FILE loop              saves two scenes in turn for ever, with a dot on standard output after each
//   FOLDER OPTIONS         mounts a file system of its own with these options there, saves a scene, makes the file
//   system
//                          read only if the options say "then-ro", and saves another one; prints the failure of that,
//                          or "no failure", the old file's state and the number of files
// A file system needs rights that not every machine gives; without them the program ends with status 77.

#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/SaveScene.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

constexpr int noRights = 77;

bool writeMap(const char* fileName, const std::string& text)
{
    const int descriptor = ::open(fileName, O_WRONLY | O_CLOEXEC);
    const bool written = ::write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    ::close(descriptor);
    return written;
}

// Mounts are this process's own from then on and go with it.
bool leaveMountsOfOthers()
{
    if (::unshare(CLONE_NEWNS) != 0) {
        const std::string user = std::to_string(::geteuid());
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 || !writeMap("/proc/self/uid_map", user + ' ' + user + " 1"))
            return false;
    }
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

int saveForEver(const QString& fileName)
{
    const NxRef<NxGroup> first = SaveScene::named("first");
    const NxRef<NxGroup> second = SaveScene::named("second");
    for (bool isFirst = true; !SaveScene::save(isFirst ? first : second, fileName); isFirst = !isFirst) {
        std::putchar('.');
        std::fflush(stdout);
    }
    return 1;
}

int saveOnFileSystem(const QString& folder, QByteArray options)
{
    const bool thenReadOnly = options.endsWith(",then-ro");
    options.replace(",then-ro", "");
    const QByteArray path = QFile::encodeName(folder);
    if (!leaveMountsOfOthers() || ::mount("tmpfs", path.constData(), "tmpfs", 0, options.constData()) != 0)
        return noRights;
    const QString fileName = folder + QStringLiteral("/scene.mrd");
    writeFile(fileName, AppScenes::robotText);
    if (thenReadOnly && ::mount(nullptr, path.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0)
        return noRights;
    const auto failure = SaveScene::save(SaveScene::named("second"), fileName);
    std::printf("%s\n%s\n%d\n", qUtf8Printable(failure.value_or(QStringLiteral("no failure"))),
        readFile(fileName) == AppScenes::robotText ? "whole" : "lost",
        static_cast<int>(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size()));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    return arguments[2] == QStringLiteral("loop") ? saveForEver(arguments[1])
                                                  : saveOnFileSystem(arguments[1], arguments[2].toUtf8());
}
