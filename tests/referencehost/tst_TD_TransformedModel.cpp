// SPDX-License-Identifier: MIT
#include "SampleModel.h"
#include "host/models/AT_ModelData.h"
#include "host/models/TD_Model3DUtils.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QRegularExpression>
#include <QTest>

namespace {

osg::Matrix movedTo(float x, float y = 0, float z = 0)
{
    osg::Matrix matrix;
    matrix.setTranslate(x, y, z);
    return matrix;
}

/// A shape that has something in it.
osg::NodePtr addShape(const osg::NodePtr& parent, const char* name)
{
    const osg::NodePtr node = addNode<osg::Geometry>(parent, name);
    osg::GeometryPtr::dcast(node->getCore())->setPositions(osg::GeoPositions3f::create());
    return node;
}

osg::NodePtr find(const osg::NodePtr& root, const char* name)
{
    const char* own = osg::getName(root);
    if (own && qstrcmp(own, name) == 0)
        return root;
    for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
        if (const osg::NodePtr found = find(root->getChild(i), name); found != osg::NullFC)
            return found;
    }
    return osg::NullFC;
}

/// The hierarchy with the kinds of cores and the names.
QString outline(const osg::NodePtr& node)
{
    const osg::NodeCorePtr core = node->getCore();
    const char* name = osg::getName(node);
    QString text =
        core == osg::NullFC ? QStringLiteral("-") : QString::fromLatin1(core->getType().getCName());
    text += name ? QStringLiteral(":") + QString::fromUtf8(name) : QString();
    QStringList below;
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        below << outline(node->getChild(i));
    return below.isEmpty() ? text : text + QStringLiteral("(%1)").arg(below.join(u' '));
}

} // namespace

/// A body with an arm, which has a hand, and a leg; each has a shape named after it.
class tst_TD_TransformedModel : public QObject
{
    Q_OBJECT

private:
    Model _model;
    AT_ModelData _settings;

    void set(const char* subnode, const AT_ModelNodeData& record)
    {
        _settings.setNodeData(AT_ModelNodeKey(QString::fromUtf8(subnode)), record);
    }
    Model copy(double modelUnits = 1.0) const
    {
        CC_Transformation transformation;
        transformation.addDeformation(TD_Model3DUtils::createSubTransformation(_settings));
        return TD_Model3DUtils::getTransformed3dModel(_model, transformation, modelUnits);
    }
    static osg::Matrix matrixOf(const Model& model, const char* name)
    {
        const osg::NodePtr node = find(model->rootNodePtr(), name);
        return osg::TransformPtr::dcast(node->getCore())->getMatrix();
    }
    osg::NodeCorePtr shape(const Model& model, const char* name) const
    {
        return find(model->rootNodePtr(), name)->getCore();
    }
    /// Which of the shapes are shared with the original; of the others, those not empty get a "!".
    QString shared(const Model& model) const
    {
        QStringList names;
        for (const char* name : {"bodyShape", "armShape", "handShape", "legShape"}) {
            const osg::NodeCorePtr core = shape(model, name);
            if (core == shape(_model, name))
                names << QString::fromLatin1(name).chopped(5);
            else if (osg::GeometryPtr::dcast(core)->getPositions() != osg::NullFC)
                names << QString::fromLatin1(name).chopped(5) + u'!';
        }
        return names.join(u' ');
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        const osg::NodePtr root = osg::makeCoredNode<osg::Group>();
        const osg::NodePtr body = addNode<osg::KeyTransform>(root, "body");
        addShape(body, "bodyShape");
        const osg::NodePtr arm = addNode<osg::KeyTransform>(body, "arm");
        osg::Matrix placed = movedTo(1, 2, 3);
        placed.setScale(2, 2, 2);
        osg::KeyTransformPtr::dcast(arm->getCore())->setMatrix(placed);
        addShape(addNode<osg::Transform>(arm, "within"), "armShape");
        addShape(addNode<osg::KeyTransform>(arm, "hand"), "handShape");
        addShape(addNode<osg::KeyTransform>(body, "leg"), "legShape");
        body->addChild(osg::Node::create());
        _model = std::make_shared<TD_CelVq3d>(root);
        _settings = {};
    }
    void cleanup() { _model.reset(); }

    void has_the_hierarchy_of_the_original()
    {
        const QString original = outline(_model->rootNodePtr());
        set("arm", {false, false, movedTo(5)});
        set("hand", {true, false, movedTo(6)});
        const Model moved = copy();
        QVERIFY(moved && moved != _model);
        QCOMPARE(outline(moved->rootNodePtr()), original);
        QVERIFY(moved->rootNodePtr()->getParent() == osg::NullFC);
        QVERIFY(find(moved->rootNodePtr(), "arm") != find(_model->rootNodePtr(), "arm"));
    }

    void keeps_no_name_apart_from_an_empty_one()
    {
        setNodeName(find(_model->rootNodePtr(), "leg"), "");
        const osg::NodePtr root = copy()->rootNodePtr();
        QVERIFY(!osg::getName(root));
        const osg::NodePtr body = find(root, "body");
        QCOMPARE(osg::getName(body->getChild(2)), "");
        QVERIFY(!osg::getName(body->getChild(3)));
    }

    void moves_a_subnode_by_its_own_matrix_times_that_of_its_record()
    {
        set("arm", {true, true, movedTo(10, 20, 30)});
        osg::Matrix expected = matrixOf(_model, "arm");
        expected.mult(movedTo(10, 20, 30));
        const Model moved = copy();
        QVERIFY(matrixOf(moved, "arm") == expected);
        QVERIFY(!(matrixOf(moved, "arm") == matrixOf(_model, "arm")));
        // The own matrix doubles what the record does.
        QCOMPARE(expected[3][0], 21.0F);
        QVERIFY(matrixOf(moved, "hand") == osg::Matrix());
        QVERIFY(matrixOf(moved, "body") == osg::Matrix());
    }

    void translations_are_in_scene_units_and_nothing_else_is()
    {
        osg::Matrix record = movedTo(1, 2, 3);
        record.setScale(5, 6, 7);
        set("leg", {true, true, record});
        osg::Matrix expected = movedTo(10, 20, 30);
        expected.setScale(5, 6, 7);
        QVERIFY(matrixOf(copy(10.0), "leg") == expected);
    }

    void later_deformations_move_further()
    {
        CC_Transformation transformation;
        osg::Matrix expected = matrixOf(_model, "arm");
        osg::Matrix doubled;
        doubled.setScale(2, 2, 2);
        for (const osg::Matrix& each : {movedTo(1), doubled}) {
            _settings = {};
            set("arm", {true, true, each});
            transformation.addDeformation(TD_Model3DUtils::createSubTransformation(_settings));
            expected.mult(each);
        }
        const Model moved = TD_Model3DUtils::getTransformed3dModel(_model, transformation, 1.0);
        QVERIFY(matrixOf(moved, "arm") == expected);
    }

    void shapes_are_shared_where_nothing_hides_them()
    {
        QCOMPARE(shared(copy()), QStringLiteral("body arm hand leg"));
        set("arm", {true, true, movedTo(4)});
        QCOMPARE(shared(copy()), QStringLiteral("body arm hand leg"));
    }

    void switching_off_empties_everything_below()
    {
        set("arm", {false, true, {}});
        QCOMPARE(shared(copy()), QStringLiteral("body leg"));
        // What is on by itself stays off below what is off.
        set("hand", {true, true, {}});
        QCOMPARE(shared(copy()), QStringLiteral("body leg"));
        set("body", {false, true, {}});
        QCOMPARE(shared(copy()), QString());
    }

    void hiding_a_shape_empties_that_one_alone()
    {
        set("arm", {true, false, {}});
        QCOMPARE(shared(copy()), QStringLiteral("body hand leg"));
        set("body", {true, false, {}});
        QCOMPARE(shared(copy()), QStringLiteral("hand leg"));
    }

    void gives_the_same_copy_for_the_same()
    {
        set("arm", {true, true, movedTo(4)});
        const Model first = copy();
        QCOMPARE(copy(), first);
        QVERIFY(copy(2.0) != first);
        const Model other = std::make_shared<TD_CelVq3d>(_model->rootNodePtr());
        QVERIFY(TD_Model3DUtils::getTransformed3dModel(other, {}, 1.0) !=
                TD_Model3DUtils::getTransformed3dModel(_model, {}, 1.0));
        set("arm", {true, true, movedTo(5)});
        QVERIFY(copy() != first);
        set("arm", {true, true, movedTo(4)});
        QCOMPARE(copy(), first);
    }

    void leaves_the_original_as_it_is()
    {
        const QString before = outline(_model->rootNodePtr());
        const osg::Matrix arm = matrixOf(_model, "arm");
        set("arm", {false, false, movedTo(4)});
        set("body", {true, false, movedTo(5)});
        const Model moved = copy();
        QCOMPARE(outline(_model->rootNodePtr()), before);
        QVERIFY(matrixOf(_model, "arm") == arm);
        QVERIFY(matrixOf(_model, "body") == osg::Matrix());
        QCOMPARE(shared(_model), QStringLiteral("body arm hand leg"));
        QVERIFY(osg::GeometryPtr::dcast(shape(_model, "armShape"))->getPositions() != osg::NullFC);
    }

    void a_copy_outlives_its_original()
    {
        set("arm", {true, true, movedTo(4)});
        const Model moved = copy();
        const QString before = outline(moved->rootNodePtr());
        _model.reset();
        QCOMPARE(outline(moved->rootNodePtr()), before);
        QVERIFY(osg::GeometryPtr::dcast(shape(moved, "armShape"))->getPositions() != osg::NullFC);
    }

    void no_model_gives_none()
    {
        QVERIFY(!TD_Model3DUtils::getTransformed3dModel(nullptr, {}, 1.0));
        const Model empty = std::make_shared<TD_CelVq3d>(osg::NullFC);
        const Model moved = TD_Model3DUtils::getTransformed3dModel(empty, {}, 1.0);
        QVERIFY(moved && moved->rootNodePtr() == osg::NullFC);
    }

    void copies_a_chain_deeper_than_the_stack()
    {
        constexpr int depth = 20000;
        const osg::NodePtr root = addNode<osg::KeyTransform>(osg::NullFC, "link");
        osg::NodePtr last = root;
        for (int i = 1; i < depth; ++i)
            last = addNode<osg::KeyTransform>(last, "link");
        _model = std::make_shared<TD_CelVq3d>(root);
        set("link", {true, true, movedTo(1)});
        osg::NodePtr node = copy()->rootNodePtr();
        int moved = 0;
        for (;; node = node->getChild(0)) {
            moved += osg::TransformPtr::dcast(node->getCore())->getMatrix() == movedTo(1) ? 1 : 0;
            if (node->getNChildren() == 0)
                break;
        }
        QCOMPARE(moved, depth);
    }
};

QTEST_GUILESS_MAIN(tst_TD_TransformedModel)
#include "tst_TD_TransformedModel.moc"
