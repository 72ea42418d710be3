// SPDX-License-Identifier: MIT
#include "ElementSettings.h"
#include "SampleModel.h"
#include "host/commands/CO_CommandManager.h"
#include "host/commands/CO_MacroCommand.h"
#include "host/models/TD_TransformManipulators.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_ManipContext.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

#include <cmath>
#include <optional>

namespace {

const AT_ModelNodeKey A(QStringLiteral("a"));
const AT_ModelNodeKey B(QStringLiteral("b"));
const AT_ModelNodeKey C(QStringLiteral("c"));

AT_ModelNodeData record(bool visible, bool localVisible, bool hasTransformation)
{
    AT_ModelNodeData data;
    data.visible = visible;
    data.localVisible = localVisible;
    data.hasTransformation = hasTransformation;
    return data;
}

AT_ModelNodeData moved(bool visible)
{
    AT_ModelNodeData data = record(visible, false, true);
    data.transformation.setTranslate(1.0f, 2.0f, 3.0f);
    return data;
}

class CountedMacro : public CO_OrCommand
{
public:
    CountedMacro()
        : CO_OrCommand(false)
    {
    }
    std::size_t size() { return parts().size(); }
};

} // namespace

class tst_TD_TransformManipulators : public QObject
{
    Q_OBJECT

private:
    std::optional<SC_SessionContext> _session;
    std::optional<TUScene> _scene;
    MO_ElementModule* _element = nullptr;
    std::optional<CountedMacro> _macro;
    TD_NodeWith3DSubNodeManipulator _manipulator;

    SLB_NodeInterface* selected() const { return _element->selInterface(); }
    SLB_ManipContext at(double frame, CX_AnimationMode mode = eFixedFrame)
    {
        SLB_ManipContext context(&*_session, &*_scene, mode, frame);
        context.attachMacro(&*_macro);
        return context;
    }
    void subSelect(std::initializer_list<AT_ModelNodeKey> keys)
    {
        selected()->clearSubSelection();
        for (const AT_ModelNodeKey& key : keys) {
            int id = -1;
            _element->getSelIdForNodeKey(key, id);
            selected()->subSelect(id, true);
        }
    }
    void set(int frame, const AT_ModelData::Records& records)
    {
        auto data = std::make_unique<AT_ModelData>();
        for (const auto& [key, value] : records)
            data->setNodeData(key, value);
        _element->setSeqMeta(frame, std::move(data));
    }
    Settings settings() const { return settingsOf(*_element); }
    AT_ModelData::Records recordsAt(int frame) const { return settings()[frame].records(); }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _session.emplace();
        _scene.emplace(QStringLiteral("Scene"), _session->changeManager());
        _element = static_cast<MO_ElementModule*>(
            _scene->rootGroup()->insertNode(std::make_unique<MO_ElementModule>("Element")));
        _element->exposeModel(1, 20, modelOf({"a", "b", "c"}));
        _session->selection()->add(_element);
        _macro.emplace();
    }
    void cleanup()
    {
        _macro.reset();
        _scene.reset();
        _session.reset();
    }

    void is_there_for_elements_only()
    {
        MO_PegModule peg{QString()};
        _session->selection()->add(&peg);
        using Made = std::unique_ptr<TD_Module3dTransformManipulator>;
        const auto make = TD_Transformation3dUtil::createTransformation3dManipulator;
        QVERIFY(!Made(make(nullptr)));
        QVERIFY(!Made(make(peg.selInterface())));
        const Made made(make(selected()));
        QVERIFY(dynamic_cast<TD_NodeWith3DSubNodeManipulator*>(made.get()));
        subSelect({A});
        made->setVisible(at(1), selected(), false);
        QVERIFY(_macro->execute());
        QVERIFY(!recordsAt(1).at(A).visible);
    }

    void changes_nothing_before_the_macro_is_executed()
    {
        subSelect({A});
        _manipulator.setVisible(at(1), selected(), false);
        QVERIFY(settings().empty());
        QVERIFY(!_macro->empty());
        QVERIFY(_macro->execute());
        QCOMPARE(settings().size(), 1u);
    }

    void changes_one_flag_of_the_sub_selected_subnodes()
    {
        subSelect({A, C});
        _manipulator.setVisible(at(1), selected(), false);
        _manipulator.setLocalVisible(at(2), selected(), false);
        _manipulator.createSubNodeTransformations(at(3), selected());
        QCOMPARE(_macro->size(), 3u);
        // Each starts from what holds at its frame when its turn comes.
        QVERIFY(_macro->execute());
        const AT_ModelNodeData off = record(false, true, false),
                               hidden = record(false, false, false),
                               movable = record(false, false, true);
        QVERIFY(recordsAt(1) == (AT_ModelData::Records{{A, off}, {C, off}}));
        QVERIFY(recordsAt(2) == (AT_ModelData::Records{{A, hidden}, {C, hidden}}));
        QVERIFY(recordsAt(3) == (AT_ModelData::Records{{A, movable}, {C, movable}}));
    }

    void leaves_the_rest_of_a_record_alone()
    {
        set(1, {{A, moved(false)}, {B, moved(false)}});
        subSelect({A});
        _manipulator.setVisible(at(1), selected(), true);
        QVERIFY(_macro->execute());
        QVERIFY(recordsAt(1) == (AT_ModelData::Records{{A, moved(true)}, {B, moved(false)}}));
    }

    void records_nothing_where_nothing_would_change()
    {
        set(1, {{A, moved(false)}, {B, record(false, false, true)}});
        const Settings before = settings();
        subSelect({A, B});
        _manipulator.setVisible(at(1), selected(), false);
        _manipulator.setLocalVisible(at(7), selected(), false);
        _manipulator.createSubNodeTransformations(at(1), selected());
        subSelect({C});
        _manipulator.setVisible(at(1), selected(), true);
        _manipulator.setLocalVisible(at(4), selected(), true);
        QCOMPARE(_macro->size(), 0u);
        QVERIFY(settings() == before);
    }

    void makes_records_only_for_the_subnodes_that_change()
    {
        set(1, {{A, record(false, true, false)}});
        subSelect({A, B});
        _manipulator.setVisible(at(1), selected(), true);
        QVERIFY(_macro->execute());
        QVERIFY(recordsAt(1) == (AT_ModelData::Records{{A, AT_ModelNodeData()}}));
    }

    void changes_several_subnodes_in_one_command()
    {
        subSelect({C, A, B});
        _manipulator.setLocalVisible(at(1), selected(), false);
        QCOMPARE(_macro->size(), 1u);
        QVERIFY(_macro->execute());
        QCOMPARE(recordsAt(1).size(), 3u);
    }

    void a_new_key_starts_from_what_holds_at_the_frame()
    {
        set(1, {{A, moved(true)}, {B, moved(false)}});
        set(9, {{C, record(false, true, false)}});
        const Settings before = settings();
        subSelect({A});
        _manipulator.setVisible(at(5), selected(), false);
        QVERIFY(_macro->execute());
        Settings expected = before;
        expected[5] = before.at(1);
        expected[5].setNodeData(A, moved(false));
        QVERIFY(settings() == expected);
    }

    void a_key_at_the_frame_is_replaced()
    {
        set(1, {{A, moved(true)}});
        set(5, {{B, moved(true)}});
        Settings expected = settings();
        subSelect({A, B});
        _manipulator.setVisible(at(5.75), selected(), false);
        QVERIFY(_macro->execute());
        expected[5].setNodeData(A, record(false, true, false));
        expected[5].setNodeData(B, moved(false));
        QVERIFY(settings() == expected);
    }

    void is_keyed_at_the_current_frame_in_that_mode()
    {
        _session->currentFrameInterface()->setCurrentFrame(&*_scene, 8);
        subSelect({A});
        _manipulator.setVisible(at(0, eAtCurrentFrame), selected(), false);
        _manipulator.setVisible(at(3, eAtCurrentFrame), selected(), false);
        _manipulator.setVisible(at(3, eFixedFrame), selected(), false);
        QVERIFY(_macro->execute());
        QVERIFY(!recordsAt(8).empty() && !recordsAt(11).empty() && !recordsAt(3).empty());
        QCOMPARE(settings().size(), 3u);
    }

    void is_undone_and_redone_exactly()
    {
        set(1, {{A, moved(true)}});
        set(9, {{C, moved(false)}});
        std::vector<Settings> states{settings()};
        CO_CommandManager* manager = _session->commandManager();
        subSelect({A, C});
        for (const int frame : {1, 5, 9, 5}) {
            auto* macro = new CO_OrCommand(false);
            SLB_ManipContext context = at(frame);
            context.attachMacro(macro);
            _manipulator.setVisible(context, selected(), states.size() == 2);
            QVERIFY(manager->execute(macro, QString()));
            states.push_back(settings());
            QVERIFY(states.back() != states[states.size() - 2]);
        }
        for (int round = 0; round < 2; ++round) {
            for (std::size_t i = states.size() - 1; i-- > 0;) {
                manager->history()->undo();
                QVERIFY(settings() == states[i]);
            }
            for (std::size_t i = 1; i < states.size(); ++i) {
                manager->history()->redo();
                QVERIFY(settings() == states[i]);
            }
        }
    }

    void does_nothing_without_something_to_work_on()
    {
        MO_PegModule peg{QString()};
        _session->selection()->add(&peg);
        const auto all = [this](const SLB_ManipContext& context, SLB_NodeInterface* node) {
            _manipulator.setVisible(context, node, false);
            _manipulator.setLocalVisible(context, node, false);
            _manipulator.createSubNodeTransformations(context, node);
        };
        all(at(1), nullptr);
        all(at(1), peg.selInterface());
        all(at(1), selected());
        subSelect({A});
        all(SLB_ManipContext(&*_session, &*_scene, eFixedFrame, 1.0), selected());
        all(at(std::nan("")), selected());
        QCOMPARE(_macro->size(), 0u);
        QVERIFY(!_macro->execute());
        QVERIFY(settings().empty());
    }

    void does_nothing_once_the_element_is_gone()
    {
        subSelect({A});
        _manipulator.setVisible(at(1), selected(), false);
        _scene->rootGroup()->takeNode(_element).reset();
        QVERIFY(_macro->empty());
        QVERIFY(!_macro->execute());
    }

    void several_changes_in_one_macro_add_up()
    {
        subSelect({A});
        _manipulator.setVisible(at(1), selected(), false);
        _manipulator.setLocalVisible(at(1), selected(), false);
        QVERIFY(_macro->execute());
        QVERIFY(!recordsAt(1).at(A).visible && !recordsAt(1).at(A).localVisible);
        _macro->undo();
        QVERIFY(recordsAt(1).empty());
    }
};

QTEST_GUILESS_MAIN(tst_TD_TransformManipulators)
#include "tst_TD_TransformManipulators.moc"
