// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_SceneGraphDumper.h"
#include "referencehost/services/Diagnostics.h"
#include "responder/SetLocalValueCmd.h"
#include "tests/responder/ResponderTest.h"

namespace {

/// Collects what the host writes while it lives.
class WrittenText
{
public:
    WrittenText()
        : _before(Diagnostics::setSink([this](const QString& text) { texts.append(text); }))
    {
    }
    ~WrittenText() { Diagnostics::setSink(_before); }
    Q_DISABLE_COPY_MOVE(WrittenText)

    QStringList texts;

private:
    Diagnostics::Sink _before;
};

} // namespace

/// Making properties of subnodes available, setting values, and the scene graph as text.
class tst_GT_Creation : public ResponderTest
{
    Q_OBJECT

private slots:
    void properties_are_made_available_in_one_step()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {"hand", "leg"});
        const QString start = state();
        QVERIFY(isEnabled(createAction));
        run(createAction);
        const QString end = state();
        QCOMPARE(settings(element), QStringLiteral("hand movable, leg movable"));
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), QStringLiteral("Make Subnode Properties Available"));
        for (int round = 0; round < 2; ++round) {
            QVERIFY(!isEnabled(createAction));
            history().undo();
            QCOMPARE(state(), start);
            QVERIFY(isEnabled(createAction));
            history().redo();
            QCOMPARE(state(), end);
        }
    }

    void properties_are_offered_until_every_subnode_has_them()
    {
        MO_ElementModule& element = addSelected();
        QVERIFY(!isEnabled(createAction));
        subSelectOnly(element, {"hand"});
        run(createAction);
        QVERIFY(!isEnabled(createAction));
        run(createAction);
        QCOMPARE(history().count(), 1);
        for (const QStringList& names : {QStringList{"hand", "leg"}, QStringList{"leg", "hand"}}) {
            subSelectOnly(element, names);
            QVERIFY(isEnabled(createAction));
        }
        run(createAction);
        QCOMPARE(settings(element), QStringLiteral("hand movable, leg movable"));
        QVERIFY(!isEnabled(createAction));
        element.selInterface()->clearSubSelection();
        QVERIFY(!isEnabled(createAction));
        run(createAction);
        QCOMPARE(history().count(), 2);
    }

    void properties_are_made_available_at_the_current_frame_alone()
    {
        MO_ElementModule& element = addSelected();
        _stage->setVisible(element, {"leg"}, false, 3);
        subSelectOnly(element, {"hand"});
        _stage->goToFrame(5);
        run(createAction);
        QCOMPARE(keyedSettings(element), QStringLiteral("3: leg off; 5: hand movable, leg off"));
        QVERIFY(!isEnabled(createAction));
        _stage->goToFrame(3);
        QVERIFY(isEnabled(createAction));
    }

    void setting_a_value_swaps_it_and_makes_the_node_dirty_if_asked_data()
    {
        QTest::addColumn<bool>("makesDirty");
        QTest::newRow("dirty") << true;
        QTest::newRow("not dirty") << false;
    }
    void setting_a_value_swaps_it_and_makes_the_node_dirty_if_asked()
    {
        QFETCH(const bool, makesDirty);
        MO_Node& peg = _stage->addPeg(QStringLiteral("peg"));
        AT_StringAttr attr(&peg, AT_AttrMeta(QStringLiteral("text"), makesDirty));
        attr.setLocalValue(QStringLiteral("old"));
        QSignalSpy told(_stage->context().changeManager(), &TUSceneChangeManager::nodesChanged);
        tu_attr::SetLocalValueCmd<AT_StringAttr> command(&attr, QStringLiteral("new"));
        for (const char* value : {"new", "old", "new"}) {
            peg.setDirty(false);
            _stage->notify();
            told.clear();
            QVERIFY(command.execute());
            QCOMPARE(attr.localValue(), QLatin1String(value));
            QCOMPARE(peg.isDirty(), makesDirty);
            _stage->notify();
            QCOMPARE(told.count(), 1);
        }
        // The base undoes by executing once more.
        QVERIFY(command.undo());
        QCOMPARE(attr.localValue(), QStringLiteral("old"));
        attr.setLocalValue(QStringLiteral("new"));
        peg.setDirty(false);
        QVERIFY(!command.execute());
        QCOMPARE(attr.localValue(), QStringLiteral("new"));
        QVERIFY(!peg.isDirty());
    }

    void the_scene_graph_is_written_where_the_host_writes()
    {
        MO_ElementModule& element = addSelected();
        element.exposeModel(4, 5, ModelBuilder::emptyModel());
        const WrittenText written;
        // No subnode has to be selected.
        QVERIFY(isEnabled(dumpAction));
        QVERIFY(written.texts.isEmpty());
        run(dumpAction);
        const osg::NodePtr root = element.modelAt(1)->rootNodePtr();
        QCOMPARE(written.texts.join(QString()).trimmed(),
                 TD_SceneGraphDumper::text(root).trimmed());
        QVERIFY(written.texts.join(QString()).contains(QLatin1String("hand")));
        // An empty model is one, but at some frames there is none.
        const qsizetype before = written.texts.size();
        _stage->goToFrame(4);
        run(dumpAction);
        QVERIFY(written.texts.size() > before);
        const QStringList texts = written.texts;
        _stage->goToFrame(lastFrame + 1);
        QVERIFY(isEnabled(dumpAction));
        run(dumpAction);
        QCOMPARE(written.texts, texts);
        QCOMPARE(history().count(), 0);
    }
};

QTEST_MAIN(tst_GT_Creation)
#include "tst_GT_Creation.moc"
