// SPDX-License-Identifier: MIT
#include "SampleModel.h"
#include "host/models/AT_ModelData.h"
#include "host/models/TD_Model3DUtils.h"
#include "host/scene/MO_BaseContext.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_PegModule.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>

namespace {

bool feed(const MO_Node& from, const MO_Node& to)
{
    return MO_Port::link(from.outPort(0), to.inPort(0));
}

} // namespace

/// What is asked of nodes that show models; copies of models have tests of their own.
class tst_TD_Model3DUtils : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void gives_the_model_of_the_frame()
    {
        MO_ElementModule element{QString()};
        const Model early = modelOf({"a"}), late = modelOf({"b"});
        element.exposeModel(1, 4, early);
        element.exposeModel(5, 9, late);
        QCOMPARE(TD_Model3DUtils::get3dModel(MO_BaseContext(nullptr, 4.5), &element), early);
        QCOMPARE(TD_Model3DUtils::get3dModel(MO_BaseContext(nullptr, 5.0), &element), late);
        QVERIFY(!TD_Model3DUtils::get3dModel(MO_BaseContext(nullptr, 10.0), &element));
    }

    void no_node_and_other_nodes_show_no_model()
    {
        MO_PegModule peg{QString()};
        const MO_BaseContext context(nullptr, 1.0);
        QVERIFY(!TD_Model3DUtils::get3dModel(context, nullptr));
        QVERIFY(!TD_Model3DUtils::get3dModel(context, &peg));
    }

    void gives_the_settings_of_the_frame()
    {
        MO_ElementModule element{QString()};
        element.setSeqMeta(3, std::make_unique<AT_ModelData>());
        QVERIFY(!TD_Model3DUtils::getModelMetadata(MO_BaseContext(nullptr, 2.0), &element));
        AT_ModelData* data =
            TD_Model3DUtils::getModelMetadata(MO_BaseContext(nullptr, 8.0), &element);
        QVERIFY(data);
        QCOMPARE(data, element.seqMeta(3.0));
    }

    void no_node_and_other_nodes_have_no_settings()
    {
        const MO_PegModule peg{QString()};
        const MO_BaseContext context(nullptr, 1.0);
        QVERIFY(!TD_Model3DUtils::getModelMetadata(context, nullptr));
        QVERIFY(!TD_Model3DUtils::getModelMetadata(context, &peg));
    }

    void an_element_works_on_its_own_model()
    {
        MO_ElementModule upstream{QString()}, element{QString()};
        QVERIFY(feed(upstream, element));
        QCOMPARE(TD_Model3DUtils::getParentElement(&element), &element);
    }

    void another_node_works_on_the_element_upstream()
    {
        MO_ElementModule element{QString()};
        MO_PassThroughModule passThrough{QString()};
        MO_KinematicOutputModule output{QString()}, further{QString()};
        QVERIFY(feed(passThrough, output));
        QVERIFY(feed(output, further));
        QVERIFY(!TD_Model3DUtils::getParentElement(&further));
        QVERIFY(feed(element, passThrough));
        QCOMPARE(TD_Model3DUtils::getParentElement(&passThrough), &element);
        QCOMPARE(TD_Model3DUtils::getParentElement(&output), &element);
        QCOMPARE(TD_Model3DUtils::getParentElement(&further), &element);
        MO_Port::link(nullptr, output.inPort(0));
        QVERIFY(!TD_Model3DUtils::getParentElement(&further));
    }

    void the_nearest_element_upstream_counts()
    {
        MO_ElementModule far{QString()}, near{QString()};
        MO_KinematicOutputModule output{QString()};
        feed(far, near);
        feed(near, output);
        QCOMPARE(TD_Model3DUtils::getParentElement(&output), &near);
    }

    void nodes_without_an_element_upstream_have_none()
    {
        MO_PegModule portless{QString()};
        MO_KinematicOutputModule unlinked{QString()};
        QVERIFY(!TD_Model3DUtils::getParentElement(nullptr));
        QVERIFY(!TD_Model3DUtils::getParentElement(&portless));
        QVERIFY(!TD_Model3DUtils::getParentElement(&unlinked));
    }

    void a_ring_has_no_element()
    {
        MO_PassThroughModule a{QString()}, b{QString()}, self{QString()};
        MO_KinematicOutputModule output{QString()};
        feed(a, b);
        feed(b, a);
        feed(a, output);
        feed(self, self);
        QVERIFY(!TD_Model3DUtils::getParentElement(&output));
        QVERIFY(!TD_Model3DUtils::getParentElement(&self));
    }

    void goes_upstream_further_than_the_stack_is_deep()
    {
        MO_ElementModule element{QString()};
        std::vector<std::unique_ptr<MO_PassThroughModule>> chain;
        const MO_Node* last = &element;
        for (int i = 0; i < 20000; ++i) {
            chain.push_back(std::make_unique<MO_PassThroughModule>(QString()));
            feed(*last, *chain.back());
            last = chain.back().get();
        }
        QCOMPARE(TD_Model3DUtils::getParentElement(chain.back().get()), &element);
    }

    void a_sub_transformation_holds_the_settings_it_was_made_of()
    {
        AT_ModelData data;
        data.setNodeData(AT_ModelNodeKey("arm"), AT_ModelNodeData{false, true, {}});
        const auto made = TD_Model3DUtils::createSubTransformation(data);
        QVERIFY(made);
        QVERIFY(made->settings() == data);
        QVERIFY(*made == *TD_Model3DUtils::createSubTransformation(data));
        data.removeNodeData(AT_ModelNodeKey("arm"));
        QVERIFY(made->settings().nodeData(AT_ModelNodeKey("arm")));
        QVERIFY(!(*made == *TD_Model3DUtils::createSubTransformation(data)));
    }

    void a_transformation_keeps_deformations_in_order_and_ignores_null()
    {
        CC_Transformation transformation;
        const auto first = TD_Model3DUtils::createSubTransformation({});
        const auto second = TD_Model3DUtils::createSubTransformation({});
        transformation.addDeformation(first);
        transformation.addDeformation(nullptr);
        transformation.addDeformation(second);
        QCOMPARE(transformation.deformations().size(), 2u);
        QCOMPARE(transformation.deformations().front(), first);
        QCOMPARE(transformation.deformations().back(), second);
    }
};

QTEST_GUILESS_MAIN(tst_TD_Model3DUtils)
#include "tst_TD_Model3DUtils.moc"
