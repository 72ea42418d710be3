// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "ElementSettings.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelCmds.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

#include <optional>

using AT_ModelCmds::insertNodeDataCmd;

namespace {

const AT_ModelNodeKey Arm(QStringLiteral("arm"));
const AT_ModelNodeKey Leg(QStringLiteral("leg"));

AT_ModelNodeData hidden()
{
    AT_ModelNodeData data;
    data.visible = false;
    return data;
}

AT_ModelNodeData shapeHidden()
{
    AT_ModelNodeData data;
    data.localVisible = false;
    data.transformation.setTranslate(1.0f, 2.0f, 3.0f);
    return data;
}

} // namespace

class tst_AT_ModelCmds : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    std::optional<TUScene> _scene;
    MO_ElementModule* _element = nullptr;

    AT_ModelData* setSettings(int frame, const AT_ModelNodeKey& key, const AT_ModelNodeData& record)
    {
        auto data = std::make_unique<AT_ModelData>();
        data->setNodeData(key, record);
        _element->setSeqMeta(frame, std::move(data));
        return _element->seqMeta(frame);
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _scene.emplace(QStringLiteral("Scene"), &_changes);
        _element = static_cast<MO_ElementModule*>(
            _scene->rootGroup()->insertNode(std::make_unique<MO_ElementModule>("Element")));
        _changes.notify();
    }
    void cleanup() { _scene.reset(); }

    void makes_settings_from_the_first_frame_on_when_there_are_none()
    {
        insertNodeDataCmd command(_element, nullptr);
        command.addData(Arm, hidden());
        QVERIFY(command.execute());
        const Settings settings = settingsOf(*_element);
        QCOMPARE(settings.size(), 1u);
        QVERIFY(*settings.at(1).nodeData(Arm) == hidden());
    }

    void undoes_the_making_of_settings_and_redoes_it()
    {
        insertNodeDataCmd command(_element, nullptr);
        command.addData(Arm, hidden());
        command.addData(Leg, shapeHidden());
        command.execute();
        const Settings after = settingsOf(*_element);
        for (int round = 0; round < 3; ++round) {
            QVERIFY(command.undo());
            QVERIFY(settingsOf(*_element).empty());
            QVERIFY(command.redo());
            QVERIFY(settingsOf(*_element) == after);
        }
    }

    void writes_into_the_settings_that_hold_and_into_no_others()
    {
        setSettings(1, Arm, shapeHidden());
        AT_ModelData* at5 = setSettings(5, Leg, shapeHidden());
        setSettings(9, Arm, shapeHidden());
        const Settings before = settingsOf(*_element);

        insertNodeDataCmd command(_element, at5);
        command.addData(Arm, hidden());
        command.addData(Leg, hidden());
        command.execute();
        Settings expected = before;
        expected[5].setNodeData(Arm, hidden());
        expected[5].setNodeData(Leg, hidden());
        QVERIFY(settingsOf(*_element) == expected);

        command.undo();
        QVERIFY(settingsOf(*_element) == before);
        command.redo();
        QVERIFY(settingsOf(*_element) == expected);
    }

    void keeps_empty_settings_that_were_there_before()
    {
        _element->setSeqMeta(1, std::make_unique<AT_ModelData>());
        insertNodeDataCmd command(_element, _element->seqMeta(1));
        command.addData(Arm, hidden());
        command.execute();
        command.undo();
        QVERIFY(_element->seqMeta(1));
        QVERIFY(_element->seqMeta(1)->records().empty());
    }

    void lets_a_later_record_replace_an_earlier_one()
    {
        insertNodeDataCmd command(_element, nullptr);
        command.addData(Arm, hidden());
        command.addData(Arm, shapeHidden());
        command.execute();
        QVERIFY(*_element->seqMeta(1)->nodeData(Arm) == shapeHidden());
    }

    void writes_into_settings_that_were_replaced_by_others()
    {
        AT_ModelData* at3 = setSettings(3, Arm, shapeHidden());
        const Settings before = settingsOf(*_element);
        insertNodeDataCmd command(_element, at3);
        command.addData(Arm, hidden());
        command.execute();
        const Settings after = settingsOf(*_element);
        _element->setSeqMeta(3, std::make_unique<AT_ModelData>(*_element->seqMeta(3)));
        command.undo();
        QVERIFY(settingsOf(*_element) == before);
        _element->setSeqMeta(3, std::make_unique<AT_ModelData>(*_element->seqMeta(3)));
        command.redo();
        QVERIFY(settingsOf(*_element) == after);
    }

    void never_writes_into_settings_that_hold_from_an_earlier_frame()
    {
        setSettings(3, Arm, AT_ModelNodeData());
        AT_ModelData* at7 = setSettings(7, Arm, shapeHidden());
        insertNodeDataCmd command(_element, at7);
        command.addData(Arm, hidden());
        command.execute();
        _element->setSeqMeta(7, nullptr);
        const Settings before = settingsOf(*_element);
        command.undo();
        QVERIFY(*_element->seqMeta(3)->nodeData(Arm) == AT_ModelNodeData());
        QVERIFY(*_element->seqMeta(7)->nodeData(Arm) == shapeHidden());
        command.redo();
        QVERIFY(settingsOf(*_element) == before);
    }

    void undoes_a_chain_of_commands_made_without_settings()
    {
        CO_CommandManager manager(&_changes);
        std::vector<Settings> states{settingsOf(*_element)};
        for (const AT_ModelNodeKey& key : {Arm, Leg, Arm}) {
            auto* command = new insertNodeDataCmd(
                _element, states.size() == 1 ? nullptr : _element->seqMeta(1));
            command->addData(key, states.size() == 3 ? AT_ModelNodeData() : hidden());
            QVERIFY(manager.execute(command, QString()));
            states.push_back(settingsOf(*_element));
        }
        for (int round = 0; round < 2; ++round) {
            for (int i = 3; i-- > 0;) {
                manager.history()->undo();
                QVERIFY(settingsOf(*_element) == states[static_cast<std::size_t>(i)]);
            }
            for (int i = 1; i <= 3; ++i) {
                manager.history()->redo();
                QVERIFY(settingsOf(*_element) == states[static_cast<std::size_t>(i)]);
            }
        }
    }

    void two_commands_made_before_either_ran_share_the_new_settings()
    {
        insertNodeDataCmd first(_element, nullptr), second(_element, nullptr);
        first.addData(Arm, hidden());
        second.addData(Leg, hidden());
        first.execute();
        second.execute();
        QCOMPARE(_element->seqMeta(1)->records().size(), 2u);
        second.undo();
        QCOMPARE(_element->seqMeta(1)->records().size(), 1u);
        first.undo();
        QVERIFY(!_element->seqMeta(1));
    }

    void spares_records_that_others_put_into_its_settings()
    {
        insertNodeDataCmd command(_element, nullptr);
        command.addData(Arm, hidden());
        command.execute();
        _element->seqMeta(1)->setNodeData(Leg, hidden());
        command.undo();
        QVERIFY(_element->seqMeta(1));
        QVERIFY(!_element->seqMeta(1)->nodeData(Arm));
        QVERIFY(_element->seqMeta(1)->nodeData(Leg));
    }

    void tells_that_the_element_changed()
    {
        ChangeLog log(_changes);
        AT_ModelData* data = setSettings(1, Arm, hidden());
        _changes.notify();
        log.take();
        insertNodeDataCmd command(_element, data);
        command.addData(Arm, shapeHidden());
        QVERIFY(log.told().isEmpty());
        command.execute();
        _changes.notify();
        command.undo();
        _changes.notify();
        QCOMPARE(log.take(), (QStringList{"nodes Element", "nodes Element"}));
    }

    void is_empty_without_records()
    {
        insertNodeDataCmd command(_element, nullptr);
        QVERIFY(command.empty());
        QVERIFY(!command.execute());
        command.addData(Arm, AT_ModelNodeData());
        QVERIFY(!command.empty());
    }

    void does_nothing_for_a_node_that_is_no_element_or_null()
    {
        MO_PegModule peg{QString()};
        for (MO_Node* node : {static_cast<MO_Node*>(&peg), static_cast<MO_Node*>(nullptr)}) {
            insertNodeDataCmd command(node, nullptr);
            command.addData(Arm, hidden());
            QVERIFY(command.empty());
            QVERIFY(!command.execute());
        }
    }

    void does_nothing_with_settings_of_another_element()
    {
        MO_ElementModule other{QString()};
        other.setSeqMeta(1, std::make_unique<AT_ModelData>());
        insertNodeDataCmd command(_element, other.seqMeta(1));
        command.addData(Arm, hidden());
        QVERIFY(command.empty());
        QVERIFY(!command.execute());
        QVERIFY(!_element->seqMeta(1));
        QVERIFY(other.seqMeta(1)->records().empty());
    }

    void does_nothing_once_its_element_is_gone()
    {
        CO_CommandManager manager(&_changes);
        auto* command = new insertNodeDataCmd(_element, nullptr);
        command->addData(Arm, hidden());
        QVERIFY(manager.execute(command, QString()));
        _scene->rootGroup()->takeNode(_element).reset();
        manager.history()->undo();
        QCOMPARE(manager.history()->count(), 0);
    }

    void works_on_a_detached_element()
    {
        MO_ElementModule detached{QString()};
        insertNodeDataCmd command(&detached, nullptr);
        command.addData(Arm, hidden());
        QVERIFY(command.execute());
        QVERIFY(command.undo());
        QVERIFY(!detached.seqMeta(1));
    }
};

QTEST_GUILESS_MAIN(tst_AT_ModelCmds)
#include "tst_AT_ModelCmds.moc"
