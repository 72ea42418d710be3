// SPDX-License-Identifier: MIT
#include "referencehost/scene/SceneElements.h"

#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"

#include <QRegularExpression>
#include <QTest>

namespace {

template <class Module>
Module* add(MO_GroupModule* group, const char* name)
{
    auto module = std::make_unique<Module>(QString::fromLatin1(name));
    return static_cast<Module*>(group->insertNode(std::move(module)));
}

using Elements = std::vector<MO_ElementModule*>;

} // namespace

class tst_SceneElements : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void no_scene_and_an_empty_one_have_none()
    {
        QVERIFY(elementsOf(nullptr).empty());
        const TUScene scene(QStringLiteral("scene"), nullptr);
        QVERIFY(elementsOf(&scene).empty());
    }

    void elements_are_found_in_order_at_any_depth()
    {
        const TUScene scene(QStringLiteral("scene"), nullptr);
        auto* first = add<MO_ElementModule>(scene.rootGroup(), "first");
        auto* group = add<MO_GroupModule>(scene.rootGroup(), "group");
        auto* inner = add<MO_GroupModule>(group, "inner");
        auto* last = add<MO_ElementModule>(scene.rootGroup(), "last");
        // Made after the last one, and yet before it in the scene.
        auto* third = add<MO_ElementModule>(inner, "third");
        auto* fourth = add<MO_ElementModule>(group, "fourth");
        QCOMPARE(elementsOf(&scene), (Elements{first, third, fourth, last}));
    }

    void other_nodes_are_passed_over()
    {
        const TUScene scene(QStringLiteral("scene"), nullptr);
        add<MO_PegModule>(scene.rootGroup(), "peg");
        auto* group = add<MO_GroupModule>(scene.rootGroup(), "group");
        add<MO_PegModule>(group, "other peg");
        QVERIFY(elementsOf(&scene).empty());
        auto* element = add<MO_ElementModule>(group, "element");
        QCOMPARE(elementsOf(&scene), Elements{element});
    }
};

QTEST_APPLESS_MAIN(tst_SceneElements)
#include "tst_SceneElements.moc"
