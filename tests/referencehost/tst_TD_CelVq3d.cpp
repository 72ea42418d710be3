// SPDX-License-Identifier: MIT
#include "SampleModel.h"
#include "host/models/TD_Vq3dCelGetter.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_PegModule.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>

class tst_TD_CelVq3d : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void keeps_its_scene_graph_alive()
    {
        const osg::NodePtr root = addNode<osg::Group>(osg::NullFC, "root");
        const TD_CelVq3d cel(root);
        {
            const osg::NodeRefPtr passing(root);
        }
        QVERIFY(cel.rootNodePtr() == root);
        QCOMPARE(cel.rootNodePtr()->getNChildren(), 0u);
    }

    void leaves_a_scene_graph_that_others_hold()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "root"));
        {
            const TD_CelVq3d cel(root);
        }
        QCOMPARE(root->getNChildren(), 0u);
    }

    void may_be_without_a_scene_graph()
    {
        QVERIFY(TD_CelVq3d(osg::NullFC).rootNodePtr() == osg::NullFC);
    }

    void is_fetched_at_the_frame_of_the_context()
    {
        MO_ElementModule element{QString()};
        const Model model = modelOf({"a"});
        element.exposeModel(3, 5, model);
        const auto celAt = [&](double frame) {
            TD_Vq3dCelGetter getter(MO_BaseContext(nullptr, frame));
            element.accept(getter);
            return getter.celPtr();
        };
        QCOMPARE(celAt(2.0), Model());
        QCOMPARE(celAt(3.0), model);
        QCOMPARE(celAt(5.5), model);
        QCOMPARE(celAt(6.0), Model());
    }

    void is_that_of_the_module_visited_last()
    {
        MO_ElementModule element{QString()}, blank{QString()};
        MO_PegModule peg{QString()};
        const Model model = modelOf({"a"});
        element.exposeModel(1, 1, model);
        TD_Vq3dCelGetter getter(MO_BaseContext(nullptr, 1.0));
        QVERIFY(!getter.celPtr());
        for (MO_Module* next : std::vector<MO_Module*>{&blank, &peg}) {
            element.accept(getter);
            QCOMPARE(getter.celPtr(), model);
            next->accept(getter);
            QVERIFY(!getter.celPtr());
        }
    }

    void outlives_the_element_that_showed_it()
    {
        auto element = std::make_unique<MO_ElementModule>(QString());
        element->exposeModel(1, 1, modelOf({"a", "b"}));
        const Model cel = element->modelAt(1.0);
        element.reset();
        QCOMPARE(cel->rootNodePtr()->getNChildren(), 2u);
    }
};

QTEST_GUILESS_MAIN(tst_TD_CelVq3d)
#include "tst_TD_CelVq3d.moc"
