// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewQt.h"
#include "host/actions/AC_Manager.h"
#include "host/scene/SC_SessionContext.h"
#include "referencehost/session/HostSession.h"
#include "tests/documents/Documents.h"
#include "workbench/docks/SceneListDock.h"
#include "workbench/timeline/TimelineDock.h"
#include "workbench/timeline/TimelineView.h"
#include "workbench/window/WorkbenchWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>
#include <QTreeWidget>

namespace {

QString plain(QString text)
{
    return text.remove(u'&').remove(QStringLiteral("...")).trimmed();
}

/// As the guide writes it: the name of the action, and its keys in any order.
QString row(const QString& name, QStringList keys)
{
    keys.sort();
    return name + QStringLiteral(": ") + keys.join(QStringLiteral("  "));
}

QStringList keysOf(const QList<QKeySequence>& sequences)
{
    QStringList keys;
    for (const QKeySequence& sequence : sequences) {
        // The same key may be there twice: as the platform's own, and by name.
        if (const QString key = sequence.toString(QKeySequence::PortableText); !keys.contains(key))
            keys += key;
    }
    return keys;
}

void collect(const QList<QAction*>& actions, QSet<QString>& rows)
{
    for (QAction* action : actions) {
        if (action->menu())
            collect(action->menu()->actions(), rows);
        else if (!action->shortcuts().isEmpty())
            rows += row(plain(action->text()), keysOf(action->shortcuts()));
    }
}

} // namespace

/// The tables of keys in the user's guide, and the keys that the window really has.
class tst_document_keys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void keys_of_the_window_are_those_of_the_guide();
    void keys_of_the_time_line_are_those_of_the_guide();
    void keys_of_the_scene_list_are_those_of_the_guide();
    void arrow_keys_of_the_graph_view_are_those_of_the_guide();

private:
    /// The rows of the table in the section: names in bold, each key in code.
    QSet<QString> documented(const QString& section) const;
    static void compare(const QSet<QString>& there, const QSet<QString>& told);

    std::unique_ptr<HostSession> _session;
    std::unique_ptr<WorkbenchWindow> _window;
    const Documents _documents{QStringLiteral(SOURCES)};
};

void tst_document_keys::initTestCase()
{
    osg::osgInit(0, nullptr);
    _session = std::make_unique<HostSession>();
    _session->openScene(QStringLiteral("scene"));
    _window = std::make_unique<WorkbenchWindow>(*_session);
}

void tst_document_keys::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_document_keys::cleanupTestCase()
{
    _window.reset();
    _session.reset();
}

QSet<QString> tst_document_keys::documented(const QString& section) const
{
    static const QRegularExpression line(QStringLiteral("^\\| \\*\\*(.+)\\*\\* \\| ([^|]*) \\|"));
    static const QRegularExpression code(QStringLiteral("`([^`]+)`"));
    QSet<QString> rows;
    for (const QString& text : _documents.section(QStringLiteral("docs/user-guide.md"), section)) {
        const QRegularExpressionMatch match = line.match(text);
        if (!match.hasMatch())
            continue;
        QStringList keys;
        auto it = code.globalMatch(match.captured(2));
        while (it.hasNext())
            keys += it.next().captured(1);
        rows += row(match.captured(1), keys);
    }
    return rows;
}

void tst_document_keys::compare(const QSet<QString>& there, const QSet<QString>& told)
{
    QVERIFY(!there.isEmpty());
    QStringList untold = (there - told).values();
    QStringList untrue = (told - there).values();
    untold.sort();
    untrue.sort();
    QVERIFY2(untold.isEmpty(),
             qPrintable(QStringLiteral("The guide does not tell:\n") + untold.join(u'\n')));
    QVERIFY2(untrue.isEmpty(), qPrintable(QStringLiteral("The guide tells, but there is not:\n") +
                                          untrue.join(u'\n')));
}

void tst_document_keys::keys_of_the_window_are_those_of_the_guide()
{
    QSet<QString> there;
    collect(_window->menuBar()->actions(), there);
    const std::vector<QAction*> defined = _session->context().actionManager()->actions();
    collect(QList<QAction*>(defined.begin(), defined.end()), there);
    compare(there, documented(QStringLiteral("Everywhere in the window")));
}

void tst_document_keys::keys_of_the_time_line_are_those_of_the_guide()
{
    QSet<QString> there;
    collect(_window->timeline().view().actions(), there);
    compare(there, documented(QStringLiteral("In the time line")));
}

void tst_document_keys::keys_of_the_scene_list_are_those_of_the_guide()
{
    QSet<QString> there;
    collect(_window->sceneList().list()->actions(), there);
    compare(there, documented(QStringLiteral("In the scene list")));
}

void tst_document_keys::arrow_keys_of_the_graph_view_are_those_of_the_guide()
{
    // Such a key has no name of its own, so the guide's names do not count here.
    static const QRegularExpression name(QStringLiteral("^.*: "));
    QSet<QString> there;
    for (const QShortcut* shortcut :
         _window->graphView().findChildren<QShortcut*>(Qt::FindDirectChildrenOnly))
        there += shortcut->key().toString(QKeySequence::PortableText);
    QSet<QString> told;
    for (QString row : documented(QStringLiteral("In the graph view")))
        told += row.remove(name);
    compare(there, told);
}

QTEST_MAIN(tst_document_keys)
#include "tst_document_keys.moc"
