// SPDX-License-Identifier: MIT
#include "Dialogs.h"
#include "tests/workbench/WindowTest.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

/// What the program was working on when it was killed is offered by the next one.
class tst_after_a_crash : public WindowTest
{
    Q_OBJECT

private:
    const QString _copies = QStringLiteral("data/subnode-views/subnode-workbench/autosave");
    std::unique_ptr<QTemporaryDir> _folder;
    std::unique_ptr<Dialogs> _dialogs;

    QString path(const QString& name) const { return _folder->filePath(name); }
    QStringList copies() const
    {
        return QDir(path(_copies)).entryList({QStringLiteral("*.autosave")}, QDir::Files);
    }
    /// Hides the head of the robot in a program of its own, and kills that once it has kept a copy.
    void crash()
    {
        const auto before = copies().size();
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral("data")));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(PROGRAM),
                      {QStringLiteral(MODELS "/robot.gltf"), QStringLiteral("--select"),
                       QStringLiteral("Head"), QStringLiteral("--action"),
                       QStringLiteral("onActionHideNodes")});
        // The copy of the moment before may not have the head hidden yet.
        QTRY_VERIFY_WITH_TIMEOUT(copies().size() > before && isHeadHiddenInACopy(), 60000);
        program.kill();
        QVERIFY(program.waitForFinished());
        QCOMPARE(copies().size(), before + 1);
    }
    bool isHeadHiddenInACopy() const
    {
        const QStringList all = copies();
        return std::any_of(all.begin(), all.end(), [this](const QString& name) {
            QFile file(path(_copies + u'/' + name));
            return file.open(QIODevice::ReadOnly) && file.readAll().contains("\\\"Head\\\"");
        });
    }
    void openRemembering()
    {
        WindowOptions options;
        options.remembers = true;
        openEmptyWindow(options);
    }
    void answer(const QString& button)
    {
        openRemembering();
        _dialogs->expect(Dialogs::click(button));
        _window->files().offerAbandoned();
        QVERIFY(_dialogs->areDone());
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        QCoreApplication::setOrganizationName(QStringLiteral("subnode-views"));
        QCoreApplication::setApplicationName(QStringLiteral("subnode-workbench"));
    }
    void init()
    {
        _folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral("data"))));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           path(QStringLiteral("config")));
        _dialogs = std::make_unique<Dialogs>();
    }
    void cleanup()
    {
        closeWindow();
        QCOMPARE(_dialogs->unexpected(), QStringList());
    }

    void a_copy_that_is_opened_has_what_was_not_saved()
    {
        crash();
        answer(QStringLiteral("Open Copy"));
        QTRY_VERIFY_WITH_TIMEOUT(element(0), 30000);
        QVERIFY(isHidden(*element(0), QStringLiteral("Head")));
        QTRY_VERIFY(_window->isWindowModified());
        QVERIFY(_window->windowTitle().startsWith(QStringLiteral("Untitled")));
        QVERIFY(!entry("Edit", "Undo")->isEnabled());
        // The copy belongs to this window now, and goes with it.
        QTRY_COMPARE(copies().size(), 1);
        _dialogs->expect(Dialogs::click(QStringLiteral("Discard")));
        _window->close();
        closeWindow();
        QCOMPARE(copies(), QStringList());
    }

    void models_that_are_opened_meanwhile_come_behind_the_copy()
    {
        crash();
        answer(QStringLiteral("Open Copy"));
        open({QStringLiteral(MODELS "/crane.gltf")});
        QCOMPARE(listed(), (QStringList{"robot", "crane"}));
        QVERIFY(isHidden(*element(0), QStringLiteral("Head")));
        QCoreApplication::processEvents();
        QCOMPARE(listed(), (QStringList{"robot", "crane"}));
    }

    void a_copy_that_is_discarded_is_gone()
    {
        crash();
        answer(QStringLiteral("Discard Copy"));
        QVERIFY(listed().isEmpty());
        QVERIFY(!_window->isWindowModified());
        QCOMPARE(copies(), QStringList());
    }

    void a_copy_that_is_left_for_later_is_offered_again()
    {
        crash();
        answer(QStringLiteral("Later"));
        QVERIFY(listed().isEmpty());
        QCOMPARE(copies().size(), 1);
        closeWindow();
        openRemembering();
        _dialogs->expect(Dialogs::escape());
        _window->files().offerAbandoned();
        QVERIFY(_dialogs->areDone());
        QCOMPARE(copies().size(), 1);
    }

    void nothing_is_offered_where_nothing_was_lost()
    {
        openRemembering();
        _window->files().offerAbandoned();
        QCOMPARE(_dialogs->texts(), QStringList());
    }

    void a_window_that_does_not_remember_offers_nothing()
    {
        crash();
        openEmptyWindow();
        _window->files().offerAbandoned();
        QCOMPARE(_dialogs->texts(), QStringList());
        QCOMPARE(copies().size(), 1);
    }
};

QTEST_MAIN(tst_after_a_crash)
#include "tst_after_a_crash.moc"
