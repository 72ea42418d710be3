// SPDX-License-Identifier: MIT
#include "workbench/window/FileActions.h"

#include "Dialogs.h"
#include "ModelFiles.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/window/MessageBar.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// Nothing unsaved goes without a question, and no file is replaced by less than it holds.
class tst_save_scene : public WindowTest
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> _folder;
    std::unique_ptr<Dialogs> _dialogs;
    QString _scene;

    QString path(const QString& name) const { return _folder->filePath(name); }
    QStringList messages() { return _window->messages().messages(); }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void hide(const QString& name)
    {
        subSelect(name);
        graph().setFocus();
        key(Qt::Key_H);
        QVERIFY(isHidden(*element(0), name));
    }
    /// Saves by the dialog, as a file that is not there yet.
    void saveAs(const QString& file)
    {
        _dialogs->expect(Dialogs::choose(file));
        key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(_dialogs->areDone());
    }
    bool saves() { return QFile::exists(_scene); }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        _folder = std::make_unique<QTemporaryDir>();
        _scene = path(QStringLiteral("my scene.subnodes"));
        openWindow();
        _dialogs = std::make_unique<Dialogs>();
    }
    void cleanup()
    {
        closeWindow();
        QCOMPARE(_dialogs->unexpected(), QStringList());
    }

    void a_scene_without_a_file_is_asked_for_one()
    {
        QVERIFY(_window->isWindowModified());
        QCOMPARE(_window->windowTitle(), QStringLiteral("Untitled[*] - Subnode Workbench"));
        _dialogs->expect(Dialogs::escape());
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(_dialogs->areDone());
        QVERIFY(_window->isWindowModified());
        _dialogs->expect(Dialogs::choose(_scene));
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(saves());
        QVERIFY(!_window->isWindowModified());
        QCOMPARE(_window->windowTitle(),
                 QStringLiteral("my scene.subnodes[*] - Subnode Workbench"));
    }

    void the_mark_of_changes_follows_undo()
    {
        saveAs(_scene);
        hide(QStringLiteral("Torso"));
        QVERIFY(_window->isWindowModified());
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!_window->isWindowModified());
        key(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(_window->isWindowModified());
        const QByteArray before = contentOf(_scene);
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!_window->isWindowModified());
        QVERIFY(contentOf(_scene) != before);
    }

    void selecting_is_no_change()
    {
        saveAs(_scene);
        subSelect(QStringLiteral("Head"));
        key(Qt::Key_A, Qt::ControlModifier);
        QVERIFY(!_window->isWindowModified());
    }

    void a_file_without_a_suffix_gets_one()
    {
        saveAs(path(QStringLiteral("plain")));
        QVERIFY(QFile::exists(path(QStringLiteral("plain.subnodes"))));
    }

    void another_file_is_replaced_only_with_consent()
    {
        const QString other = path(QStringLiteral("other.subnodes"));
        QVERIFY(ModelFiles::writeBroken(other));
        const QByteArray before = contentOf(other);
        _dialogs->expect(Dialogs::choose(other));
        _dialogs->expect(Dialogs::click(QStringLiteral("No")));
        _dialogs->expect(Dialogs::escape());
        key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(_dialogs->areDone());
        QCOMPARE(contentOf(other), before);
        _dialogs->expect(Dialogs::choose(other));
        _dialogs->expect(Dialogs::click(QStringLiteral("Yes")));
        key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(contentOf(other) != before);
        QVERIFY(!_window->isWindowModified());
    }

    void a_folder_that_cannot_be_written_is_told()
    {
        QString error;
        QVERIFY(!_window->files().saveTo(path(QStringLiteral("no/such/a.subnodes")), error));
        QVERIFY2(error.contains(QStringLiteral("a.subnodes")), qPrintable(error));
        QVERIFY(_window->isWindowModified());
        saveAs(_scene);
        hide(QStringLiteral("Torso"));
        // A folder in the place of the file.
        QVERIFY(QFile::remove(_scene));
        QVERIFY(QDir().mkpath(_scene + QStringLiteral("/inside")));
        _dialogs->expect(Dialogs::click(QStringLiteral("Replace")));
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(messages().size(), 1);
        QVERIFY(_window->isWindowModified());
    }

    void changes_are_not_lost_by_a_new_scene_data() { answers(); }
    void changes_are_not_lost_by_a_new_scene()
    {
        QFETCH(const QString, button);
        saveAs(_scene);
        hide(QStringLiteral("Torso"));
        const QByteArray before = contentOf(_scene);
        _dialogs->expect(Dialogs::click(button));
        key(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(_dialogs->areDone());
        QVERIFY(_dialogs->texts().last().contains(QStringLiteral("my scene.subnodes")));
        QTEST(listed().isEmpty(), "goes");
        QTEST(contentOf(_scene) != before, "saved");
        QFETCH(const bool, goes);
        QCOMPARE(_window->windowTitle().startsWith(QStringLiteral("Untitled")), goes);
        QCOMPARE(_window->isWindowModified(), !goes);
        QCOMPARE(entry("Edit", "Undo")->isEnabled(), !goes);
    }

    void changes_are_not_lost_by_closing_data() { answers(); }
    void changes_are_not_lost_by_closing()
    {
        QFETCH(const QString, button);
        saveAs(_scene);
        hide(QStringLiteral("Torso"));
        const QByteArray before = contentOf(_scene);
        _dialogs->expect(Dialogs::click(button));
        key(Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(_dialogs->areDone());
        QTEST(!_window->isVisible(), "goes");
        QTEST(contentOf(_scene) != before, "saved");
    }

    void leaving_the_question_or_the_dialog_behind_it_stays()
    {
        _dialogs->expect(Dialogs::escape());
        _window->close();
        QVERIFY(_window->isVisible());
        _dialogs->expect(Dialogs::click(QStringLiteral("Save")));
        _dialogs->expect(Dialogs::escape());
        _window->close();
        QVERIFY(_dialogs->areDone());
        QVERIFY(_window->isVisible());
        _dialogs->expect(Dialogs::press(QStringLiteral("Save")));
        _dialogs->expect(Dialogs::choose(_scene));
        _window->close();
        QVERIFY(!_window->isVisible());
        QVERIFY(saves());
    }

    void without_changes_there_is_no_question()
    {
        saveAs(_scene);
        key(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(listed().isEmpty());
        _window->close();
        QVERIFY(!_window->isVisible());
    }

    void a_file_that_others_changed_is_replaced_only_with_consent()
    {
        saveAs(_scene);
        hide(QStringLiteral("Torso"));
        QVERIFY(ModelFiles::writeBroken(_scene));
        const QByteArray theirs = contentOf(_scene);
        _dialogs->expect(Dialogs::click(QStringLiteral("Cancel")));
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(_dialogs->texts().last().contains(QStringLiteral("my scene.subnodes")));
        QCOMPARE(contentOf(_scene), theirs);
        QVERIFY(_window->isWindowModified());

        const QString other = path(QStringLiteral("other.subnodes"));
        _dialogs->expect(Dialogs::click(QStringLiteral("Save As...")));
        _dialogs->expect(Dialogs::choose(other));
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(_scene), theirs);
        QVERIFY(QFile::exists(other));
        QVERIFY(!_window->isWindowModified());

        QVERIFY(ModelFiles::writeBroken(other));
        _dialogs->expect(Dialogs::click(QStringLiteral("Replace")));
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(contentOf(other) != theirs);
        QVERIFY(_dialogs->areDone());
    }

    void a_scene_with_a_missing_model_is_told_once_and_replaced_only_with_consent()
    {
        const QString model = path(QStringLiteral("mine.gltf"));
        QVERIFY(ModelFiles::writeRobot(model));
        open({model});
        saveAs(_scene);
        QVERIFY(QFile::remove(model));
        open({_scene});
        QCOMPARE(messages().size(), 1);
        QVERIFY2(messages().first().contains(QStringLiteral("mine.gltf")),
                 qPrintable(messages().first()));
        QVERIFY(!_window->isWindowModified());
        const QByteArray whole = contentOf(_scene);
        addPeg("peg");
        QTRY_VERIFY(_window->isWindowModified());

        _dialogs->expect(Dialogs::click(QStringLiteral("Cancel")));
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(_scene), whole);
        const QString other = path(QStringLiteral("other.subnodes"));
        _dialogs->expect(Dialogs::click(QStringLiteral("Save As...")));
        _dialogs->expect(Dialogs::choose(other));
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(_scene), whole);
        QVERIFY(QFile::exists(other));
        QVERIFY(!_window->isWindowModified());

        open({_scene});
        addPeg("peg");
        _dialogs->expect(Dialogs::click(QStringLiteral("Replace")));
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(contentOf(_scene) != whole);
        QVERIFY(_dialogs->areDone());
        // What stood for the missing model still does.
        QVERIFY(ModelFiles::writeRobot(model));
        open({_scene});
        QVERIFY(element(1) && element(1)->modelAt(1));
        QVERIFY(!_window->files().isMissing(element(1)->modelAt(1)));
    }

private:
    static void answers()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("goes");
        QTest::addColumn<bool>("saved");
        QTest::newRow("save") << "Save" << true << true;
        QTest::newRow("discard") << "Discard" << true << false;
        QTest::newRow("cancel") << "Cancel" << false << false;
    }
};

QTEST_MAIN(tst_save_scene)
#include "tst_save_scene.moc"
