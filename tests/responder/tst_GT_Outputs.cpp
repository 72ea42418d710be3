// SPDX-License-Identifier: MIT

#include "host/attributes/AT_AttrMeta.h"
#include "host/factories/MO_ModuleFactory.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_TypeKeys.h"
#include "tests/responder/ResponderTest.h"

#include <utility>

namespace {

/// An output that takes further attributes.
class PlainOutput : public MO_KinematicOutputModule
{
public:
    using MO_KinematicOutputModule::MO_KinematicOutputModule;
    using MO_Node::addAttr;
};

/// A node of another kind, without attributes.
class Mute : public MO_Node
{
public:
    explicit Mute(bool hasPort)
        : MO_Node(QString())
    {
        if (hasPort)
            addPort(MO_Port::eInput);
    }
    QString typeName() const override { return QStringLiteral("MUTE"); }
    void accept(MO_AbstractModuleVisitor&) override {}
};

/// Makes other modules of the type of outputs while it lives.
class OtherOutputs
{
public:
    explicit OtherOutputs(const class_factory<MO_Module, QString>::Creator& creator)
    {
        MO_ModuleFactorySingleton().registerClass(STRING_KEY_3D_KINEMATIC_OUTPUT, creator);
    }
    ~OtherOutputs()
    {
        MO_ModuleFactorySingleton().registerClass(STRING_KEY_3D_KINEMATIC_OUTPUT, [] {
            return std::make_unique<MO_KinematicOutputModule>(QString());
        });
    }
    Q_DISABLE_COPY_MOVE(OtherOutputs)
};

} // namespace

/// Adding outputs that follow subnodes.
class tst_GT_Outputs : public ResponderTest
{
    Q_OBJECT

private:
    QStringList nodes()
    {
        QStringList texts;
        for (const MO_Node* node : _stage->scene().rootGroup()->nodes()) {
            if (!dynamic_cast<const MO_ElementModule*>(node))
                texts.append(describe(*node));
        }
        return texts;
    }
    static QString output(const QString& name, const QString& subnode)
    {
        return QStringLiteral("3D_KINEMATIC_OUTPUT '%1' at 30 105 <- robot Sub_Node_Name=%2")
            .arg(name, subnode);
    }
    MO_ElementModule& addPlaced()
    {
        MO_ElementModule& element = addSelected();
        element.setX(30);
        element.setY(5);
        return element;
    }

private slots:
    void every_subnode_gets_an_output_in_a_step_of_its_own()
    {
        MO_ElementModule& element = addPlaced();
        subSelectOnly(element, {"leg", "arm"});
        QStringList states{state()};
        QVERIFY(isEnabled(filterAction));
        run(filterAction);
        const QStringList both{output("leg-Output", "leg"), output("arm-Output", "arm")};
        QCOMPARE(nodes(), both);
        QCOMPARE(history().count(), 2);
        QCOMPARE(history().text(0), QStringLiteral("Add \"leg-Output\" node"));
        QCOMPARE(history().text(1), QStringLiteral("Add \"arm-Output\" node"));
        QCOMPARE(subSelected(element), QStringList({"leg", "arm"}));
        const QString end = state();
        for (int round = 0; round < 2; ++round) {
            history().undo();
            QCOMPARE(nodes(), both.first(1));
            history().undo();
            QCOMPARE(state(), states.first());
            history().redo();
            QCOMPARE(nodes(), both.first(1));
            history().redo();
            QCOMPARE(state(), end);
        }
    }

    void a_listener_may_change_the_scene_between_two_outputs_data()
    {
        QTest::addColumn<bool>("deletes");
        QTest::addColumn<int>("outputs");
        QTest::newRow("selection") << false << 2;
        QTest::newRow("element") << true << 1;
    }
    void a_listener_may_change_the_scene_between_two_outputs()
    {
        QFETCH(const bool, deletes);
        QFETCH(const int, outputs);
        MO_ElementModule& element = addPlaced();
        subSelectOnly(element, {"leg", "arm"});
        bool deleted = false;
        const QObject listener;
        connect(_stage->context().changeManager(), &TUSceneChangeManager::networkChanged, &listener,
                [&] {
                    _stage->context().selection()->clear();
                    if (deletes && !std::exchange(deleted, true))
                        element.parentGroup()->takeNode(&element).reset();
                });
        run(filterAction);
        QCOMPARE(nodes().size(), outputs);
    }

    void names_of_further_outputs_are_counted()
    {
        MO_ElementModule& element = addPlaced();
        _stage->addPeg(QStringLiteral("arm-Output_3"));
        subSelectOnly(element, {"arm"});
        for (int count = 0; count < 3; ++count)
            run(filterAction);
        QCOMPARE(nodes().mid(1),
                 QStringList({output("arm-Output", "arm"), output("arm-Output_2", "arm"),
                              output("arm-Output_4", "arm")}));
        QCOMPARE(history().undoText(), QStringLiteral("Add \"arm-Output_4\" node"));
        // A name that became free is taken again.
        history().undo();
        run(filterAction);
        QCOMPARE(nodes().last(), output("arm-Output_4", "arm"));
    }

    void an_output_joins_the_group_of_its_element()
    {
        auto owned = std::make_unique<MO_GroupModule>(QStringLiteral("group"));
        MO_GroupModule* group = owned.get();
        _stage->scene().rootGroup()->insertNode(std::move(owned));
        _stage->addPeg(QStringLiteral("arm-Output"));
        MO_ElementModule& element = addSelected();
        group->insertNode(_stage->scene().rootGroup()->takeNode(&element));
        _stage->select({&element});
        subSelectOnly(element, {"arm"});
        run(filterAction);
        QCOMPARE(group->nodes().size(), std::size_t(2));
        // The name is taken elsewhere, which does not count.
        QCOMPARE(describe(*group->nodes().back()),
                 QStringLiteral("3D_KINEMATIC_OUTPUT 'arm-Output' at 0 100 <- robot "
                                "Sub_Node_Name=arm"));
        QCOMPARE(group->nodes().back()->scene(), &_stage->scene());
        QCOMPARE(_stage->scene().rootGroup()->nodes().size(), std::size_t(2));
        history().undo();
        QCOMPARE(group->nodes(), std::vector<MO_Node*>{&element});
    }

    void names_with_place_marks_are_taken_as_they_are()
    {
        using namespace ModelBuilder;
        MO_ElementModule& element = addSelected(model(key("%1 \xC3\xA9 %2")));
        subSelectOnly(element, {QStringLiteral("%1 é %2")});
        run(filterAction);
        QCOMPARE(history().undoText(), QStringLiteral("Add \"%1 é %2-Output\" node"));
    }

    void outputs_are_offered_only_for_subnodes()
    {
        MO_ElementModule& element = addSelected();
        QVERIFY(!isEnabled(filterAction));
        run(filterAction);
        QCOMPARE(history().count(), 0);
        subSelectOnly(element, {"arm"});
        QVERIFY(isEnabled(filterAction));
        // Also where the element shows nothing.
        _stage->goToFrame(lastFrame + 1);
        QVERIFY(isEnabled(filterAction));
        run(filterAction);
        QCOMPARE(nodes().size(), 1);
    }

    void an_output_without_a_place_for_the_name_is_added_all_the_same()
    {
        const OtherOutputs mute([] { return std::make_unique<Mute>(true); });
        MO_ElementModule& element = addPlaced();
        subSelectOnly(element, {"arm"});
        run(filterAction);
        QCOMPARE(nodes(), QStringList{"MUTE 'arm-Output' at 30 105 <- robot"});
        history().undo();
        QCOMPARE(nodes(), QStringList());
    }

    void the_first_attribute_of_the_name_says_which_subnode_is_followed()
    {
        const OtherOutputs several([] {
            auto node = std::make_unique<PlainOutput>(QString());
            for (const char* keyword : {"sub_node_name", "Sub_Node_Name"}) {
                node->addAttr(std::make_unique<AT_StringAttr>(
                    node.get(), AT_AttrMeta(QLatin1String(keyword), false)));
            }
            return node;
        });
        MO_ElementModule& element = addPlaced();
        subSelectOnly(element, {"arm"});
        run(filterAction);
        QCOMPARE(nodes(),
                 QStringList{output("arm-Output", "arm") + " sub_node_name= Sub_Node_Name="});
    }

    void without_anything_to_add_there_is_no_step()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {"arm", "leg"});
        const QString before = state();
        {
            const OtherOutputs none([] { return std::unique_ptr<MO_Module>(); });
            run(filterAction);
        }
        // One that cannot be linked is not added either.
        {
            const OtherOutputs unlinkable([] { return std::make_unique<Mute>(false); });
            run(filterAction);
        }
        QCOMPARE(state(), before);
        QCOMPARE(history().count(), 0);
    }

    void a_factory_says_when_it_does_not_know_a_type()
    {
        try {
            static_cast<void>(MO_ModuleFactorySingleton().create(QStringLiteral("no such type")));
            QFAIL("The type is known.");
        } catch (const std::exception& error) {
            QVERIFY(dynamic_cast<const not_registered*>(&error));
            QCOMPARE(error.what(), "Class/key not registered");
        }
    }

    void what_a_factory_says_reaches_whoever_runs_the_action()
    {
        const OtherOutputs unknown([]() -> std::unique_ptr<MO_Module> { throw not_registered(); });
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {"arm"});
        const QString before = state();
        QVERIFY_THROWS_EXCEPTION(not_registered, _responder->onActionAddSubTransformationFilter());
        QCOMPARE(state(), before);
        QCOMPARE(history().count(), 0);
    }
};

QTEST_MAIN(tst_GT_Outputs)
#include "tst_GT_Outputs.moc"
