// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/GraphStage.h"
#include "tests/graphview/ShownModels.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>
#include <functional>

/// Each notice of the host, sent alone, reaches the controller by way of the panel.
class tst_GV_GraphXViewQtNotices : public QObject
{
    Q_OBJECT

    using Move = std::function<void(GraphStage&, TUSceneChangeManager&)>;

private:
    /// An element that nobody was told of.
    static void addQuietly(GraphStage& stage)
    {
        auto element = std::make_unique<MO_ElementModule>(QStringLiteral("quiet"));
        element->exposeModel(1, 10, robotModel());
        stage.scene().rootGroup()->insertNode(std::move(element));
    }
    static QString state(GraphStage& stage)
    {
        const GV_UiNode* open = stage.graph().rootUiNode();
        return stage.headers().join(QLatin1Char(' ')) + QStringLiteral(" selected: ") +
               stage.selectedNames().join(QLatin1Char(' ')) +
               (open && !open->isEditable() ? QStringLiteral(" locked") : QString());
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void each_reaches_the_controller_data()
    {
        QTest::addColumn<Move>("change");
        QTest::addColumn<Move>("tell");
        QTest::addColumn<QString>("after");
        const auto elements = [](GraphStage& stage) { return stage.scene().rootGroup()->nodes(); };
        const auto first = [elements](GraphStage& stage) {
            return static_cast<MO_ElementModule*>(elements(stage).front());
        };
        const Move quiet = [](GraphStage& stage, TUSceneChangeManager&) { addQuietly(stage); };

        QTest::newRow("selection") << Move([=](GraphStage& stage, TUSceneChangeManager&) {
            stage.context().selection()->clear();
            stage.context().selection()->add(elements(stage)[1]);
        }) << Move([](GraphStage&, TUSceneChangeManager& host) { emit host.selectionChanged(); })
                                   << "a [b] selected: b";
        QTest::newRow("sub-selection") << Move([=](GraphStage& stage, TUSceneChangeManager&) {
            first(stage)->selInterface()->subSelect(1, true);
        }) << Move([](GraphStage&, TUSceneChangeManager& host) { emit host.subSelectionChanged(); })
                                       << "[a] b selected: a body";
        QTest::newRow("frame") << quiet << Move([](GraphStage&, TUSceneChangeManager& host) {
            emit host.currentFrameChanged();
        }) << "[a] b quiet selected: a";
        QTest::newRow("scene") << quiet << Move([](GraphStage& stage, TUSceneChangeManager& host) {
            emit host.currentSceneChanged(&stage.scene());
        }) << "[a] b quiet selected: a";
        QTest::newRow("network") << quiet << Move([](GraphStage&, TUSceneChangeManager& host) {
            emit host.networkChanged({});
        }) << "[a] b quiet selected: a";
        QTest::newRow("order") << quiet << Move([](GraphStage&, TUSceneChangeManager& host) {
            emit host.childrenOrderingChanged({});
        }) << "[a] b quiet selected: a";
        QTest::newRow("nodes") << Move([=](GraphStage& stage, TUSceneChangeManager&) {
            first(stage)->setEditable(false);
        }) << Move([=](GraphStage& stage, TUSceneChangeManager& host) {
            emit host.nodesChanged({first(stage)});
        }) << "[a] b selected: a locked";
        QTest::newRow("names") << Move([=](GraphStage& stage, TUSceneChangeManager&) {
            first(stage)->setInstanceName(QStringLiteral("c"));
        }) << Move([=](GraphStage& stage, TUSceneChangeManager& host) {
            emit host.nodeInstanceNamesChanged({first(stage)});
        }) << "[c] b selected: a";
    }

    void each_reaches_the_controller()
    {
        QFETCH(Move, change);
        QFETCH(Move, tell);
        QFETCH(QString, after);
        GraphStage stage;
        MO_ElementModule& a = stage.addElement(QStringLiteral("a"));
        stage.addElement(QStringLiteral("b"));
        stage.view();
        stage.select({&a});
        const QString before = QStringLiteral("[a] b selected: a");
        QCOMPARE(state(stage), before);
        TUSceneChangeManager& host = *stage.context().changeManager();
        change(stage, host);
        QCOMPARE(state(stage), before);
        tell(stage, host);
        QCOMPARE(state(stage), after);
    }

    void a_new_view_shows_what_is_selected_already()
    {
        GraphStage stage;
        MO_ElementModule& a = stage.addElement(QStringLiteral("a"));
        MO_ElementModule& b = stage.addElement(QStringLiteral("b"));
        stage.select({&b, &a});
        stage.subSelect(b, {QStringLiteral("leg")});
        QCOMPARE(state(stage), QStringLiteral("a [b] selected: a b leg"));
    }

    void another_view_takes_in_the_colours_before_it_is_shown()
    {
        GraphStage stage;
        const QString key = QStringLiteral("ST_3DNODEVIEW_BACKGROUND_COLOR");
        PR_Preference::instance()->setRgbaValue(key, 0xff010203);
        const auto reset = qScopeGuard([&] { PR_Preference::instance()->reset(key); });
        QCOMPARE(stage.view().backgroundBrush(), QBrush(QColor(1, 2, 3)));
        QCOMPARE(stage.newView()->backgroundBrush(), QBrush(QColor(1, 2, 3)));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtNotices)
#include "tst_GV_GraphXViewQtNotices.moc"
