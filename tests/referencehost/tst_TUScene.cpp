// SPDX-License-Identifier: MIT
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

namespace {

class NameCollector : public MO_AbstractModuleVisitorWithModuleFallback
{
public:
    using MO_AbstractModuleVisitorWithModuleFallback::visit;
    void visit(MO_Module* module) override
    {
        names << static_cast<MO_Node*>(module)->instanceName();
    }

    QStringList names;
};

template <class Module>
Module* add(MO_GroupModule* group, const char* name)
{
    auto module = std::make_unique<Module>(QString::fromLatin1(name));
    return static_cast<Module*>(group->insertNode(std::move(module)));
}

} // namespace

class tst_TUScene : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void has_a_name_a_manager_and_an_empty_root_group()
    {
        TUSceneChangeManager changes;
        const TUScene scene(QStringLiteral("Scene"), &changes);
        QCOMPARE(scene.name(), QStringLiteral("Scene"));
        QCOMPARE(scene.changeManager(), &changes);
        QVERIFY(scene.rootGroup()->nodes().empty());
        QCOMPARE(scene.rootGroup()->scene(), &scene);
        QVERIFY(!scene.rootGroup()->parentGroup());
    }

    void shows_a_visitor_each_module_before_what_it_holds()
    {
        TUScene scene(QStringLiteral("Scene"), nullptr);
        MO_GroupModule* root = scene.rootGroup();
        add<MO_ElementModule>(root, "a");
        auto* b = add<MO_GroupModule>(root, "b");
        auto* c = add<MO_GroupModule>(b, "c");
        add<MO_PegModule>(c, "d");
        add<MO_ElementModule>(b, "e");
        add<MO_PegModule>(root, "f");
        NameCollector collector;
        scene.accept(collector);
        QCOMPARE(collector.names.join(u' '), QStringLiteral("a b c d e f"));
    }

    void does_not_show_its_root_group()
    {
        const TUScene scene(QStringLiteral("Scene"), nullptr);
        NameCollector collector;
        scene.accept(collector);
        QVERIFY(collector.names.isEmpty());
    }

    void leaves_weak_references_null_when_it_dies()
    {
        auto scene = std::make_unique<TUScene>(QStringLiteral("Scene"), nullptr);
        const UT_SharedWeakPtr<MO_Node> node(add<MO_PegModule>(scene->rootGroup(), "Peg"));
        const UT_SharedWeakPtr<TUScene> weakScene(scene.get());
        QVERIFY(node);
        QCOMPARE(weakScene.get(), scene.get());
        scene.reset();
        QVERIFY(!node);
        QVERIFY(!weakScene);
    }
};

QTEST_GUILESS_MAIN(tst_TUScene)
#include "tst_TUScene.moc"
