// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/workbench/SubnodeRecords.h"
#include "tests/workbench/isolation/PlainDrawing.h"
#include "workbench/isolation/VisibilitySettings.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;
using namespace SubnodeRecords;

namespace {

using Settings = std::optional<AT_ModelData>;

AT_ModelNodeKey keyOf(const char* name)
{
    return AT_ModelNodeKey(QString::fromLatin1(name));
}

AT_ModelData settingsOf(const std::vector<std::pair<const char*, AT_ModelNodeData>>& records)
{
    AT_ModelData settings;
    for (const auto& [name, record] : records)
        settings.setNodeData(keyOf(name), record);
    return settings;
}

/// A key node with a shape of its own, which is named after it.
Part shaped(const std::string& name, Parts below = {})
{
    below.insert(below.begin(), geometry(name + "Shape"));
    return key(name, below);
}

} // namespace

/// The subnodes of a small robot are isolated and come back:
/// body(head(eye) arm(hand(thumb)) leg).
class tst_visibility_settings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void the_rest_is_switched_off_and_what_leads_there_stays_on();
    void several_subnodes_are_shown_together();
    void what_hangs_below_stays_as_it_was();
    void a_selected_root_shows_all_as_it_was();
    void a_selected_subnode_that_was_hidden_is_shown();
    void what_is_above_is_switched_on_without_its_shape();
    void nested_subnodes_are_both_shown();
    void nothing_more_is_shown_between_nested_subnodes();
    void other_settings_stay_as_they_were();
    void records_that_stay_as_they_are_are_not_written();
    void keys_without_a_subnode_are_ignored();
    void without_keys_nothing_is_drawn();
    void an_empty_model_keeps_its_settings();
    void a_root_that_is_no_subnode_cannot_be_isolated();
    void equal_names_above_do_not_hide_what_is_isolated();
    void depth_costs_no_stack();
    void coming_back_gives_the_same_settings();
    void coming_back_leaves_other_changes_alone();
    void coming_back_takes_visibility_set_meanwhile_away();
    void coming_back_to_none_gives_none();

private:
    osg::NodePtr root() const { return _robot->rootNodePtr(); }
    QStringList drawn(const Settings& held, const std::vector<AT_ModelNodeKey>& keys) const
    {
        return PlainDrawing::shapes(root(), VisibilitySettings::isolated(held, root(), keys));
    }
    QStringList all() const { return PlainDrawing::shapes(root(), std::nullopt); }

    CEL_SharedPtr<TD_CelVq3d> _robot;
};

void tst_visibility_settings::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    _robot = model(
        group("scene",
              {shaped("body", {shaped("head", {shaped("eye")}),
                               shaped("arm", {group("joint", {shaped("hand", {shaped("thumb")})})}),
                               shaped("leg")})}));
}

void tst_visibility_settings::the_rest_is_switched_off_and_what_leads_there_stays_on()
{
    const AT_ModelData isolated =
        VisibilitySettings::isolated(std::nullopt, root(), {keyOf("hand")});
    QVERIFY(isolated ==
            settingsOf({{"body", hidden}, {"arm", hidden}, {"head", off}, {"leg", off}}));
    QCOMPARE(PlainDrawing::shapes(root(), isolated), (QStringList{"handShape", "thumbShape"}));
}

void tst_visibility_settings::several_subnodes_are_shown_together()
{
    QCOMPARE(drawn(std::nullopt, {keyOf("thumb"), keyOf("eye")}),
             (QStringList{"eyeShape", "thumbShape"}));
    QCOMPARE(drawn(std::nullopt, {keyOf("eye"), keyOf("thumb"), keyOf("eye")}),
             (QStringList{"eyeShape", "thumbShape"}));
}

void tst_visibility_settings::what_hangs_below_stays_as_it_was()
{
    const Settings held = settingsOf({{"hand", hidden}, {"eye", off}});
    QCOMPARE(drawn(held, {keyOf("arm")}), (QStringList{"armShape", "thumbShape"}));
    QCOMPARE(drawn(held, {keyOf("head")}), QStringList{"headShape"});
}

void tst_visibility_settings::a_selected_root_shows_all_as_it_was()
{
    QCOMPARE(drawn(std::nullopt, {keyOf("body")}), all());
    QVERIFY(VisibilitySettings::isolated(std::nullopt, root(), {keyOf("body")}) == AT_ModelData());
    const Settings held = settingsOf({{"head", off}});
    QVERIFY(VisibilitySettings::isolated(held, root(), {keyOf("body")}) == held);
    const auto keyRoot = model(shaped("top", {shaped("below"), shaped("beside")}));
    const AT_ModelData isolated =
        VisibilitySettings::isolated(std::nullopt, keyRoot->rootNodePtr(), {keyOf("below")});
    QVERIFY(isolated == settingsOf({{"top", hidden}, {"beside", off}}));
}

void tst_visibility_settings::a_selected_subnode_that_was_hidden_is_shown()
{
    QCOMPARE(drawn(settingsOf({{"leg", off}}), {keyOf("leg")}), QStringList{"legShape"});
    QCOMPARE(drawn(settingsOf({{"leg", hidden}}), {keyOf("leg")}), QStringList{"legShape"});
    QCOMPARE(drawn(settingsOf({{"leg", offAndHidden}}), {keyOf("leg")}), QStringList{"legShape"});
}

void tst_visibility_settings::what_is_above_is_switched_on_without_its_shape()
{
    const Settings held = settingsOf({{"body", off}, {"arm", off}, {"leg", hidden}});
    const AT_ModelData isolated = VisibilitySettings::isolated(held, root(), {keyOf("hand")});
    QVERIFY(isolated ==
            settingsOf({{"body", hidden}, {"arm", hidden}, {"head", off}, {"leg", offAndHidden}}));
    QCOMPARE(PlainDrawing::shapes(root(), isolated), (QStringList{"handShape", "thumbShape"}));
}

void tst_visibility_settings::nested_subnodes_are_both_shown()
{
    QCOMPARE(drawn(std::nullopt, {keyOf("arm"), keyOf("thumb")}),
             (QStringList{"armShape", "handShape", "thumbShape"}));
    QCOMPARE(drawn(settingsOf({{"thumb", off}, {"hand", hidden}}), {keyOf("arm"), keyOf("thumb")}),
             (QStringList{"armShape", "thumbShape"}));
}

void tst_visibility_settings::nothing_more_is_shown_between_nested_subnodes()
{
    const Settings held = settingsOf({{"hand", off}});
    QCOMPARE(drawn(held, {keyOf("arm"), keyOf("thumb")}), (QStringList{"armShape", "thumbShape"}));
    // What hangs beside the inner one was off with what holds both.
    QCOMPARE(drawn(settingsOf({{"arm", off}}), {keyOf("body"), keyOf("thumb")}),
             (QStringList{"bodyShape", "headShape", "eyeShape", "thumbShape", "legShape"}));
    QCOMPARE(drawn(settingsOf({{"head", off}, {"arm", off}}), {keyOf("body"), keyOf("eye")}),
             (QStringList{"bodyShape", "eyeShape", "legShape"}));
}

void tst_visibility_settings::other_settings_stay_as_they_were()
{
    AT_ModelNodeData moved = movable;
    moved.transformation[3][0] = 5;
    const AT_ModelData isolated = VisibilitySettings::isolated(
        settingsOf({{"leg", moved}, {"arm", moved}, {"thumb", moved}, {"elsewhere", moved}}),
        root(), {keyOf("hand")});
    AT_ModelNodeData movedOff = moved;
    movedOff.visible = false;
    AT_ModelNodeData movedHidden = moved;
    movedHidden.localVisible = false;
    QVERIFY(isolated == settingsOf({{"leg", movedOff},
                                    {"arm", movedHidden},
                                    {"thumb", moved},
                                    {"elsewhere", moved},
                                    {"body", hidden},
                                    {"head", off}}));
}

void tst_visibility_settings::records_that_stay_as_they_are_are_not_written()
{
    const AT_ModelData isolated =
        VisibilitySettings::isolated(settingsOf({{"head", off}}), root(), {keyOf("leg")});
    QVERIFY(isolated == settingsOf({{"body", hidden}, {"head", off}, {"arm", off}}));
}

void tst_visibility_settings::keys_without_a_subnode_are_ignored()
{
    QVERIFY(VisibilitySettings::isolated(std::nullopt, root(),
                                         {keyOf("wing"), keyOf("hand"), AT_ModelNodeKey(),
                                          keyOf("joint"), keyOf("handShape")}) ==
            VisibilitySettings::isolated(std::nullopt, root(), {keyOf("hand")}));
}

void tst_visibility_settings::without_keys_nothing_is_drawn()
{
    QCOMPARE(drawn(std::nullopt, {}), QStringList());
    QVERIFY(VisibilitySettings::isolated(std::nullopt, root(), {}) == settingsOf({{"body", off}}));
}

void tst_visibility_settings::an_empty_model_keeps_its_settings()
{
    const AT_ModelData held = settingsOf({{"leg", off}});
    QVERIFY(VisibilitySettings::isolated(held, osg::NodePtr(), {keyOf("leg")}) == held);
    QVERIFY(VisibilitySettings::isolated(std::nullopt, osg::NodePtr(), {keyOf("leg")}) ==
            AT_ModelData());
    const auto bare = model(group("scene"));
    QVERIFY(VisibilitySettings::isolated(held, bare->rootNodePtr(), {keyOf("leg")}) == held);
}

void tst_visibility_settings::a_root_that_is_no_subnode_cannot_be_isolated()
{
    const auto scene = model(group("arm", {shaped("arm"), shaped("leg")}));
    const AT_ModelData isolated =
        VisibilitySettings::isolated(std::nullopt, scene->rootNodePtr(), {keyOf("arm")});
    QCOMPARE(PlainDrawing::shapes(scene->rootNodePtr(), isolated), QStringList{"armShape"});
}

void tst_visibility_settings::equal_names_above_do_not_hide_what_is_isolated()
{
    const auto scene = model(
        shaped("top", {shaped("link", {shaped("link", {shaped("hook")})}), shaped("beside")}));
    const AT_ModelData isolated =
        VisibilitySettings::isolated(std::nullopt, scene->rootNodePtr(), {keyOf("hook")});
    QCOMPARE(PlainDrawing::shapes(scene->rootNodePtr(), isolated), QStringList{"hookShape"});
}

void tst_visibility_settings::depth_costs_no_stack()
{
    constexpr int depth = 20000;
    const auto deep = chain(depth);
    const AT_ModelNodeKey lowest(QStringLiteral("link%1").arg(depth - 1));
    const AT_ModelData isolated =
        VisibilitySettings::isolated(std::nullopt, deep->rootNodePtr(), {lowest});
    QCOMPARE(static_cast<int>(isolated.records().size()), depth - 1);
    QVERIFY(!isolated.nodeData(lowest));
}

void tst_visibility_settings::coming_back_gives_the_same_settings()
{
    const Settings none;
    for (const Settings& held :
         {none, Settings(AT_ModelData()), Settings(settingsOf({{"leg", off}, {"arm", movable}})),
          Settings(settingsOf({{"leg", {}}, {"body", hidden}})),
          Settings(settingsOf({{"elsewhere", off}}))}) {
        for (const char* selected : {"body", "hand", "leg", "wing"}) {
            const AT_ModelData isolated =
                VisibilitySettings::isolated(held, root(), {keyOf(selected)});
            QVERIFY2(VisibilitySettings::restored(isolated, held) == held, selected);
        }
    }
}

void tst_visibility_settings::coming_back_leaves_other_changes_alone()
{
    const Settings held = settingsOf({{"leg", off}});
    AT_ModelData now = VisibilitySettings::isolated(held, root(), {keyOf("hand")});
    AT_ModelNodeData moved = *now.nodeData(keyOf("leg"));
    moved.transformation[3][1] = 2;
    now.setNodeData(keyOf("leg"), moved);
    AT_ModelNodeData made = *now.nodeData(keyOf("head"));
    made.hasTransformation = true;
    now.setNodeData(keyOf("head"), made);
    now.setNodeData(keyOf("thumb"), movable);
    QVERIFY(VisibilitySettings::restored(now, held) ==
            Settings(settingsOf({{"leg", moved}, {"head", movable}, {"thumb", movable}})));
    // The same where there had been no settings at all.
    AT_ModelNodeData onAgain = moved;
    onAgain.visible = true;
    QVERIFY(VisibilitySettings::restored(now, std::nullopt) ==
            Settings(settingsOf({{"leg", onAgain}, {"head", movable}, {"thumb", movable}})));
}

void tst_visibility_settings::coming_back_takes_visibility_set_meanwhile_away()
{
    const Settings held = settingsOf({{"leg", off}, {"head", hidden}});
    AT_ModelData now = VisibilitySettings::isolated(held, root(), {keyOf("hand")});
    now.setNodeData(keyOf("thumb"), off);
    now.setNodeData(keyOf("leg"), {});
    now.removeNodeData(keyOf("head"));
    QVERIFY(VisibilitySettings::restored(now, held) == held);
    QVERIFY(VisibilitySettings::restored(std::nullopt, held) == held);
}

void tst_visibility_settings::coming_back_to_none_gives_none()
{
    QVERIFY(!VisibilitySettings::restored(std::nullopt, std::nullopt));
    QVERIFY(!VisibilitySettings::restored(AT_ModelData(), std::nullopt));
    QVERIFY(VisibilitySettings::restored(std::nullopt, AT_ModelData()) == Settings(AT_ModelData()));
}

QTEST_APPLESS_MAIN(tst_visibility_settings)
#include "tst_visibility_settings.moc"
