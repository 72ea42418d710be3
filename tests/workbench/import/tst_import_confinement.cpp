// SPDX-License-Identifier: MIT
#include "workbench/import/ImportConfinement.h"
#include "workbench/modelstream/ImportExit.h"

#include <QByteArray>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr qint64 memory = qint64(256) * 1024 * 1024;
constexpr int seconds = 1;

/// The exit code of a confined process that does the work, or minus the signal that ended it.
int exitOfConfined(const std::function<int()>& work)
{
    int ends[2];
    if (pipe(ends) != 0)
        return 1000;
    const pid_t child = fork();
    if (child == 0)
        _exit(ImportConfinement::enter(memory, seconds, ends[1]) ? work() : 1001);
    close(ends[1]);
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        status = 1002;
    close(ends[0]);
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

class tst_import_confinement : public QObject
{
    Q_OBJECT

private slots:
    void work_as_such_goes_on()
    {
        QCOMPARE(exitOfConfined([] { return 42; }), 42);
    }

    void no_file_is_written()
    {
        const QTemporaryDir folder;
        const QByteArray path = folder.filePath("trace").toLocal8Bit();
        QCOMPARE(exitOfConfined([&] {
                     const int file = open(path.constData(), O_WRONLY | O_CREAT, 0600);
                     return write(file, "word", 4) == 4 ? 1 : 0;
                 }),
                 0);
        QCOMPARE(QFileInfo(path).size(), 0);
    }

    void no_core_is_left_and_no_rights_are_gained()
    {
        QCOMPARE(exitOfConfined([] {
                     rlimit core{1, 1};
                     getrlimit(RLIMIT_CORE, &core);
                     const bool gains = prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) != 1;
                     return core.rlim_max > 0 || gains ? 1 : 0;
                 }),
                 0);
    }

    void work_without_end_is_ended()
    {
        QCOMPARE(exitOfConfined([] {
                     while (getpid() > 0)
                         continue;
                     return 0;
                 }),
                 int(ImportOutOfTime));
    }

    void hunger_without_end_is_ended()
    {
        QCOMPARE(exitOfConfined([] {
                     std::vector<std::unique_ptr<char[]>> blocks;
                     for (int i = 0; i < 10000; ++i)
                         blocks.push_back(std::make_unique<char[]>(1024 * 1024));
                     return 0;
                 }),
                 int(ImportOutOfMemory));
    }

    void memory_that_is_given_back_may_be_taken_again()
    {
        QCOMPARE(exitOfConfined([] {
                     for (int i = 0; i < 400; ++i)
                         QByteArray(1024 * 1024, 'x').detach();
                     return 0;
                 }),
                 0);
    }

    void who_has_lost_its_listener_ends()
    {
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        close(ends[0]);
        const pid_t child = fork();
        if (child == 0)
            _exit(ImportConfinement::enter(memory, seconds, ends[1]) ? 0 : 1);
        close(ends[1]);
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QCOMPARE(WEXITSTATUS(status), int(ImportUnheard));
    }

    void who_has_lost_its_parent_dies()
    {
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        const pid_t parent = fork();
        if (parent == 0) {
            if (fork() == 0) {
                const bool entered = ImportConfinement::enter(memory, seconds, ends[1]);
                if (entered && write(ends[1], "!", 1) == 1)
                    pause();
                _exit(1);
            }
            char ready = 0;
            _exit(read(ends[0], &ready, 1) == 1 ? 0 : 1);
        }
        close(ends[1]);
        int status = 1;
        QCOMPARE(waitpid(parent, &status, 0), parent);
        QCOMPARE(status, 0);
        // The pipe closes when the last process that could write is gone.
        constexpr int patienceInMilliseconds = 10000;
        pollfd state{ends[0], 0, 0};
        QCOMPARE(poll(&state, 1, patienceInMilliseconds), 1);
        QVERIFY(state.revents & POLLHUP);
        close(ends[0]);
    }
};

QTEST_APPLESS_MAIN(tst_import_confinement)
#include "tst_import_confinement.moc"
