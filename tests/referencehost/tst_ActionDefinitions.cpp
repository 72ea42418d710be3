// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"

#include <QAction>
#include <QDomElement>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QToolBar>
#include <memory>

/// What a manager takes from the texts that declare actions, keys, menus and tool bars.
class tst_ActionDefinitions : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<AC_Manager> _manager;

    /// A text of these lines; the first one is the second line of the text.
    static QByteArray text(const QByteArray& lines)
    {
        return "<definitions>\n" + lines + "\n</definitions>";
    }
    static QByteArray action(const QByteArray& id, const QByteArray& more = {})
    {
        return "<action id='" + id + "' responder='r' slot='s' text='Text' " + more + "/>\n";
    }
    bool load(const QByteArray& lines) { return _manager->loadDefinitions(text(lines)); }
    QStringList ids() const
    {
        QStringList ids;
        for (const QAction* each : _manager->actions())
            ids.append(each->objectName());
        return ids;
    }
    /// Everything that could have been taken in from the rows of the failing texts.
    bool hasTakenInNothing() const
    {
        return ids().isEmpty() && !_manager->action(QStringLiteral("A")) &&
               _manager->shortcutKey(QStringLiteral("K")) == 0 &&
               _manager->toolbar(QStringLiteral("T")).isNull() &&
               !_manager->createMenu(QStringLiteral("M"), nullptr) &&
               !_manager->createToolBar(QStringLiteral("T"), nullptr);
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _manager = std::make_unique<AC_Manager>();
    }
    void cleanup() { _manager.reset(); }

    void actions_are_taken_in_as_they_are_declared()
    {
        QVERIFY(load(action("A", "shortcuts='Ctrl++ =' checkable='true'") + action("B")));
        QCOMPARE(ids(), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
        const QAction* a = _manager->action(QStringLiteral("A"));
        QCOMPARE(a->text(), QStringLiteral("Text"));
        QCOMPARE(a->shortcuts(), QList<QKeySequence>({QKeySequence(Qt::CTRL | Qt::Key_Plus),
                                                      QKeySequence(Qt::Key_Equal)}));
        QVERIFY(a->isCheckable());
        const QAction* b = _manager->action(QStringLiteral("B"));
        QVERIFY(b->shortcuts().isEmpty());
        QVERIFY(!b->isCheckable());
        QVERIFY(b->icon().isNull());
        QVERIFY(!_manager->action(QStringLiteral("C")));
    }

    void keys_are_taken_in()
    {
        QVERIFY(load("<shortcut id='K' key='Space'/><shortcut id='L' key='F5'/>"));
        QCOMPARE(_manager->shortcutKey(QStringLiteral("K")), int(Qt::Key_Space));
        QCOMPARE(_manager->shortcutKey(QStringLiteral("L")), int(Qt::Key_F5));
        QCOMPARE(_manager->shortcutKey(QStringLiteral("M")), 0);
        QVERIFY(ids().isEmpty());
    }

    void texts_add_to_each_other()
    {
        QVERIFY(load(action("A")));
        const QAction* a = _manager->action(QStringLiteral("A"));
        QVERIFY(load(action("B") + "<toolbar id='T' text='T'><item action='A'/></toolbar>"));
        QCOMPARE(ids(), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
        QCOMPARE(_manager->action(QStringLiteral("A")), a);
        QCOMPARE(_manager->toolbar(QStringLiteral("T")).tagName(), QStringLiteral("toolbar"));
    }

    void an_empty_text_of_definitions_adds_nothing()
    {
        QString error;
        QVERIFY(_manager->loadDefinitions("<definitions/>", &error));
        QVERIFY(error.isEmpty());
        QVERIFY(hasTakenInNothing());
    }

    void a_mistake_is_told_with_its_line_and_nothing_is_taken_in_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("what");
        const auto row = [](const char* name, const QByteArray& lines, int line, const char* what) {
            QTest::newRow(name) << lines << line << QString::fromLatin1(what);
        };
        const QByteArray a = action("A");
        row("open element", a + "<menu id='M' text='M'>", 4, "");
        row("unquoted attribute", a + "<shortcut id=K key='Space'/>", 3, "");
        row("unknown element", a + "<button id='B'/>", 3, "<button> is not known.");
        row("no id", a + "\n<shortcut key='Space'/>", 4, "<shortcut> has no id.");
        row("empty id", a + "<action id='' responder='r' slot='s' text='t'/>", 3,
            "<action> has no id.");
        const char* needs = "An action needs a responder, a slot and a text.";
        row("no responder", a + "<action id='B' slot='s' text='t'/>", 3, needs);
        row("no slot", a + "<action id='B' responder='r' text='t'/>", 3, needs);
        row("no text", a + "<action id='B' responder='r' slot='s'/>", 3, needs);
        row("argument", a + action("B", "argument='two'"), 3, "The argument is not a number.");
        row("empty argument", a + action("B", "argument=''"), 3, "The argument is not a number.");
        row("same action twice", a + action("B") + action("A"), 4, "\"A\" is defined twice.");
        row("same menu twice", a + "<menu id='M' text='M'/>\n<menu id='M' text='N'/>", 4,
            "\"M\" is defined twice.");
        row("same tool bar twice", a + "<toolbar id='T' text='T'/>\n<toolbar id='T' text='T'/>", 4,
            "\"T\" is defined twice.");
        row("key of an action", a + action("B", "shortcuts='Ctrl+B Ctrl+Nonsense'"), 3,
            "\"Ctrl+Nonsense\" is not a key.");
        const QByteArray key = a + "<shortcut id='K' key='";
        row("unknown key", key + "Nonsense'/>", 3, "\"Nonsense\" is not a single key.");
        row("no key", a + "<shortcut id='K'/>", 3, "\"\" is not a single key.");
        row("key with modifier", key + "Ctrl+A'/>", 3, "\"Ctrl+A\" is not a single key.");
        row("two keys", key + "A, B'/>", 3, "\"A, B\" is not a single key.");
        row("same key twice", key + "F1'/>\n<shortcut id='K' key='F2'/>", 4,
            "\"K\" is defined twice.");
        row("menu in a tool bar", a + "<toolbar id='T' text='T'>\n<menu text='M'/></toolbar>", 4,
            "<menu> is not known.");
        const QByteArray menu = a + "<menu id='M' text='M'>\n<item action='A'/>\n";
        row("unknown action in a menu", menu + "<item action='B'/></menu>", 5,
            "No action \"B\" is defined.");
        row("item without an action", menu + "<item/></menu>", 5, "No action \"\" is defined.");
        row("action declared too late", menu + "<item action='B'/></menu>" + action("B"), 5,
            "No action \"B\" is defined.");
        row("unknown action in a submenu",
            menu + "<menu text='N'>\n<separator/>\n<item action='B'/></menu></menu>", 7,
            "No action \"B\" is defined.");
        row("unknown element in a menu", menu + "<action id='B'/></menu>", 5,
            "<action> is not known.");
        row("unknown action in a tool bar",
            a + "<toolbar id='T' text='T'>\n<item action='B'/></toolbar>", 4,
            "No action \"B\" is defined.");
    }
    void a_mistake_is_told_with_its_line_and_nothing_is_taken_in()
    {
        QFETCH(const QByteArray, lines);
        QFETCH(const int, line);
        QFETCH(const QString, what);
        QString error;
        QVERIFY(!_manager->loadDefinitions(text(lines), &error));
        const QString start = QStringLiteral("Line %1: ").arg(line);
        QVERIFY2(error.startsWith(start), qPrintable(error));
        QVERIFY(error.size() > start.size());
        QVERIFY(!error.contains(u'\n'));
        if (!what.isEmpty())
            QCOMPARE(error, start + what);
        QVERIFY(hasTakenInNothing());
        // A caller need not want to know.
        QVERIFY(!_manager->loadDefinitions(text(lines)));
        QVERIFY(load(action("A")));
        QCOMPARE(ids(), QStringList(QStringLiteral("A")));
    }

    void the_first_of_many_mistakes_is_told()
    {
        QString error;
        QVERIFY(!_manager->loadDefinitions(text("<x id='1'/>\n<y id='2'/>"), &error));
        QCOMPARE(error, QStringLiteral("Line 2: <x> is not known."));
    }

    void what_is_no_xml_is_refused()
    {
        for (const char* xml : {"", "definitions", "<definitions>", "{}"}) {
            QString error;
            QVERIFY2(!_manager->loadDefinitions(xml, &error), xml);
            QVERIFY2(error.startsWith(QStringLiteral("Line ")), qPrintable(error));
        }
        QVERIFY(hasTakenInNothing());
    }

    void a_mistake_leaves_what_was_there_before()
    {
        QVERIFY(load(action("A") + "<shortcut id='K' key='Space'/>"
                                   "<menu id='M' text='Menu'><item action='A'/></menu>"));
        const QAction* a = _manager->action(QStringLiteral("A"));
        QString error;
        QVERIFY(!_manager->loadDefinitions(
            text(action("B") + "<shortcut id='L' key='F1'/>\n" + action("A")), &error));
        QCOMPARE(error, QStringLiteral("Line 4: \"A\" is defined twice."));
        QVERIFY(!_manager->loadDefinitions(text(action("B") + "<menu id='M' text='Other'/>")));
        QCOMPARE(ids(), QStringList(QStringLiteral("A")));
        QCOMPARE(_manager->action(QStringLiteral("A")), a);
        QCOMPARE(_manager->shortcutKey(QStringLiteral("K")), int(Qt::Key_Space));
        QCOMPARE(_manager->shortcutKey(QStringLiteral("L")), 0);
        const std::unique_ptr<QMenu> menu(_manager->createMenu(QStringLiteral("M"), nullptr));
        QCOMPARE(menu->title(), QStringLiteral("Menu"));
    }
};

QTEST_MAIN(tst_ActionDefinitions)
#include "tst_ActionDefinitions.moc"
