// SPDX-License-Identifier: MIT
#include "SampleModel.h"
#include "host/commands/CO_MacroCommand.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/selection/SLB_ManipContext.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_Selection.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>

/// What a manipulation knows of where it takes place, and what it can ask of a selected element.
class tst_SLB_ManipContext : public QObject
{
    Q_OBJECT

private:
    SC_SessionContext _session;

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void gives_back_what_it_was_made_of()
    {
        TUScene scene(QStringLiteral("Scene"), _session.changeManager());
        const SLB_ManipContext context(&_session, &scene, eFixedFrame, 3.5);
        QCOMPARE(context.session(), &_session);
        QCOMPARE(context.scene(), static_cast<SC_SceneCommon*>(&scene));
        QVERIFY(!context.macro());
    }

    void holds_the_macro_that_was_attached_last()
    {
        SLB_ManipContext context(&_session, nullptr, eFixedFrame, 1.0);
        CO_OrCommand first(false), second(false);
        context.attachMacro(&first);
        QCOMPARE(context.macro(), &first);
        context.attachMacro(&second);
        QCOMPARE(context.macro(), &second);
        context.attachMacro(nullptr);
        QVERIFY(!context.macro());
    }

    void a_fixed_frame_is_the_frame_itself()
    {
        TUScene scene(QStringLiteral("Scene"), _session.changeManager());
        _session.currentFrameInterface()->setCurrentFrame(&scene, 12);
        QCOMPARE(SLB_ManipContext(&_session, &scene, eFixedFrame, 3.5).frame(), 3.5);
        QCOMPARE(SLB_ManipContext(nullptr, nullptr, eFixedFrame, -2.0).frame(), -2.0);
    }

    void a_relative_frame_follows_the_current_one_of_its_scene()
    {
        TUScene scene(QStringLiteral("Scene"), _session.changeManager());
        TUScene other(QStringLiteral("Other"), _session.changeManager());
        const SLB_ManipContext here(&_session, &scene, eAtCurrentFrame, 0.0);
        const SLB_ManipContext later(&_session, &scene, eAtCurrentFrame, 2.5);
        const SLB_ManipContext elsewhere(&_session, &other, eAtCurrentFrame, 2.0);
        QCOMPARE(here.frame(), 1.0);
        QCOMPARE(later.frame(), 3.5);
        _session.currentFrameInterface()->setCurrentFrame(&scene, 12);
        QCOMPARE(here.frame(), 12.0);
        QCOMPARE(later.frame(), 14.5);
        QCOMPARE(elsewhere.frame(), 3.0);
    }

    void a_selected_element_tells_the_settings_of_its_subnodes()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, 20, modelOf({"a", "b", "c", "d"}));
        auto data = std::make_unique<AT_ModelData>();
        AT_ModelNodeData off, hidden, movable;
        off.visible = false;
        hidden.localVisible = false;
        movable.hasTransformation = true;
        data->setNodeData(AT_ModelNodeKey("a"), off);
        data->setNodeData(AT_ModelNodeKey("b"), hidden);
        data->setNodeData(AT_ModelNodeKey("c"), movable);
        element.setSeqMeta(5, std::move(data));
        element.setSeqMeta(9, std::make_unique<AT_ModelData>());
        _session.selection()->add(&element);
        const auto* node = dynamic_cast<const SLB_NodeWith3DSubNode*>(element.selInterface());
        QVERIFY(node);

        using States = std::vector<std::uint32_t>;
        const auto states = [node](double frame, const char* key) {
            const int id = node->subNodeId(AT_ModelNodeKey(QString::fromLatin1(key)));
            States all{7, 7, 7};
            const bool known = node->subNodeVisibility(frame, id, all[0]) &&
                               node->subNodeLocalVisibility(frame, id, all[1]) &&
                               node->subNodeTransformation(frame, id, all[2]);
            return known ? all : States();
        };
        for (const double frame : {5.0, 5.5, 8.9}) {
            QCOMPARE(states(frame, "a"), (States{1, 0, 0}));
            QCOMPARE(states(frame, "b"), (States{0, 1, 0}));
            QCOMPARE(states(frame, "c"), (States{0, 0, 1}));
            QCOMPARE(states(frame, "d"), (States{0, 0, 0}));
        }
        for (const double frame : {1.0, 4.9, 9.0, 20.0}) {
            for (const char* key : {"a", "b", "c", "d"})
                QCOMPARE(states(frame, key), (States{0, 0, 0}));
        }
    }

    void an_unknown_id_has_no_settings()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, 1, modelOf({"a"}));
        _session.selection()->add(&element);
        const auto* node = dynamic_cast<const SLB_NodeWith3DSubNode*>(element.selInterface());
        QVERIFY(node);
        for (const int id : {-1, 0, 2}) {
            std::uint32_t state = 7;
            QVERIFY(!node->subNodeVisibility(1.0, id, state));
            QVERIFY(!node->subNodeLocalVisibility(1.0, id, state));
            QVERIFY(!node->subNodeTransformation(1.0, id, state));
            QCOMPARE(state, 7u);
        }
    }
};

QTEST_GUILESS_MAIN(tst_SLB_ManipContext)
#include "tst_SLB_ManipContext.moc"
