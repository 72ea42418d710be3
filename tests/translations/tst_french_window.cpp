// SPDX-License-Identifier: MIT

#include "host/actions/AC_Manager.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/language/Translations.h"
#include "workbench/preferences/PreferencePage.h"
#include "workbench/preferences/PreferencesDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QUndoStack>
#include <optional>

/// The window where the user reads French.
class tst_french_window : public WindowTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void the_menus_are_french();
    void actions_that_change_their_text_stay_french();
    void steps_to_undo_are_french();
    void messages_are_french();
    void no_menu_has_a_key_twice_data();
    void no_menu_has_a_key_twice();
    void no_entry_of_the_menu_bar_has_a_key_twice();
    void no_page_of_the_preferences_has_a_key_twice();
    void preferences_are_named_without_their_colon();
    void a_language_without_a_translation_is_english();
    void texts_are_english_again_afterwards();

private:
    std::optional<Translations> _french;
};

namespace {

/// The key that a text marks; null where it marks none.
QChar keyOf(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("&([^&])"));
    const QString key = mark.match(text).captured(1).toLower();
    return key.isEmpty() ? QChar() : key.front();
}

/// The texts whose key another one has as well.
QStringList doubled(const QStringList& texts)
{
    QStringList several;
    QString taken;
    for (const QString& text : texts) {
        const QChar key = keyOf(text);
        if (!key.isNull() && taken.contains(key))
            several += text;
        taken += key;
    }
    return several;
}

QStringList textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts += action->text();
    return texts;
}

QStringList doubledBelow(const QMenu& menu)
{
    QStringList several = doubled(textsOf(menu.actions()));
    for (const QAction* action : menu.actions()) {
        if (action->menu())
            several += doubledBelow(*action->menu());
    }
    return several;
}

} // namespace

void tst_french_window::initTestCase()
{
    osg::osgInit(0, nullptr);
}

void tst_french_window::init()
{
    _french.emplace(QLocale(QStringLiteral("fr_FR")));
    QCOMPARE(_french->language(), QStringLiteral("fr"));
    openWindow();
}

void tst_french_window::cleanup()
{
    closeWindow();
    _french.reset();
}

void tst_french_window::cleanupTestCase()
{
    osg::osgExit();
}

void tst_french_window::the_menus_are_french()
{
    QStringList titles = textsOf(_window->menuBar()->actions());
    titles.replaceInStrings(QStringLiteral("&"), QString());
    QCOMPARE(titles, (QStringList{"Fichier", "\u00c9dition", "Affichage", "Sous-n\u0153uds",
                                  "Lecture", "Fen\u00eatre", "Aide"}));
    QVERIFY(entry(QStringLiteral("Fichier"), QStringLiteral("Enregistrer sous...")));
    QVERIFY(entry(QStringLiteral("Sous-n\u0153uds"), QStringLiteral("Isoler")));
    QVERIFY(entry(QStringLiteral("Lecture"), QStringLiteral("Image suivante")));
    QVERIFY(entry(QStringLiteral("Fen\u00eatre"), QStringLiteral("Arborescence")));
}

void tst_french_window::actions_that_change_their_text_stay_french()
{
    QAction* navigator = context().actionManager()->action(QStringLiteral("GRAPH_NAVIGATOR"));
    QTRY_COMPARE(navigator->text(), QStringLiteral("Masquer le navigateur"));
    navigator->trigger();
    QTRY_COMPARE(navigator->text(), QStringLiteral("Afficher le navigateur"));
}

void tst_french_window::steps_to_undo_are_french()
{
    subSelect(QStringLiteral("Head"));
    QAction* hide = context().actionManager()->action(QStringLiteral("GRAPH_HIDE"));
    QTRY_VERIFY(hide->isEnabled());
    hide->trigger();
    QVERIFY(entry(QStringLiteral("\u00c9dition"),
                  QStringLiteral("Annuler Masquage de n\u0153uds du mod\u00e8le")));
}

void tst_french_window::messages_are_french()
{
    QCOMPARE(_window->statusBar()->currentMessage(),
             QStringLiteral("\u00ab\u202frobot\u202f\u00bb est ouvert."));
    const QAction* zoom = context().actionManager()->action(QStringLiteral("GRAPH_ZOOM_IN"));
    QCOMPARE(zoom->toolTip(), QStringLiteral("Zoom avant"));
}

void tst_french_window::no_menu_has_a_key_twice_data()
{
    QTest::addColumn<QString>("id");
    for (const char* id : {"VIEW_MENU", "SUBNODES_MENU", "3D_NODES_POPUP_MENU",
                           "3D_GRAPH_VIEW_MENU", "3D_GRAPH_POPUP_MENU"})
        QTest::newRow(id) << QString::fromLatin1(id);
}

void tst_french_window::no_menu_has_a_key_twice()
{
    QFETCH(QString, id);
    const std::unique_ptr<QMenu> menu(context().actionManager()->createMenu(id, nullptr));
    QVERIFY(menu);
    QVERIFY(!menu->isEmpty());
    QCOMPARE(doubledBelow(*menu), QStringList());
}

void tst_french_window::no_entry_of_the_menu_bar_has_a_key_twice()
{
    const QList<QAction*> menus = _window->menuBar()->actions();
    QCOMPARE(doubled(textsOf(menus)), QStringList());
    for (const QAction* menu : menus) {
        QVERIFY(!keyOf(menu->text()).isNull());
        QCOMPARE(doubledBelow(*menu->menu()), QStringList());
    }
    QCOMPARE(doubled(textsOf(list().actions())), QStringList());
}

void tst_french_window::no_page_of_the_preferences_has_a_key_twice()
{
    const PreferencesDialog dialog;
    QStringList buttons;
    for (const QAbstractButton* button : dialog.findChild<QDialogButtonBox*>()->buttons())
        buttons += button->text();
    QVERIFY(buttons.size() >= 3);
    const QList<PreferencePage*> pages = dialog.findChildren<PreferencePage*>();
    QCOMPARE(pages.size(), 3);
    for (const PreferencePage* page : pages) {
        QStringList texts = buttons;
        for (const QLabel* label : page->findChildren<QLabel*>()) {
            if (label->buddy())
                texts += label->text();
        }
        for (const QCheckBox* box : page->findChildren<QCheckBox*>())
            texts += box->text();
        QVERIFY(texts.size() > buttons.size());
        QCOMPARE(doubled(texts), QStringList());
    }
}

void tst_french_window::preferences_are_named_without_their_colon()
{
    const PreferencesDialog dialog;
    const auto* reset = dialog.findChild<QWidget*>(QStringLiteral("ST_3DNODEVIEW_FONT_RESET"));
    QVERIFY(reset);
    QCOMPARE(reset->toolTip(),
             QStringLiteral("R\u00e9tablir la valeur par d\u00e9faut\u202f: Police"));
}

void tst_french_window::a_language_without_a_translation_is_english()
{
    _french.reset();
    const Translations german(QLocale(QStringLiteral("de_DE")));
    QCOMPARE(german.language(), QStringLiteral("en"));
    QCOMPARE(QCoreApplication::translate("WorkbenchWindow", "&File"), QStringLiteral("&File"));
    // Nothing of the window is German either where Qt has a translation.
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Discard"), QStringLiteral("Discard"));
}

void tst_french_window::texts_are_english_again_afterwards()
{
    QCOMPARE(QCoreApplication::translate("Actions", "&Hide"), QStringLiteral("&Masquer"));
    QCOMPARE(QCoreApplication::translate("GraphXView", "no_name"), QStringLiteral("sans_nom"));
    _french.reset();
    QCOMPARE(QCoreApplication::translate("Actions", "&Hide"), QStringLiteral("&Hide"));
    QCOMPARE(QCoreApplication::translate("GraphXView", "no_name"), QStringLiteral("no_name"));
}

QTEST_MAIN(tst_french_window)
#include "tst_french_window.moc"
