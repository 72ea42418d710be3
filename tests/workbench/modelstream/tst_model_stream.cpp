// SPDX-License-Identifier: MIT
#include "SceneOutline.h"
#include "StreamTesting.h"
#include "workbench/modelstream/ModelStreamWriter.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QBuffer>
#include <QTest>

using namespace StreamTesting;
using State = ModelStreamReader::State;

class tst_model_stream : public QObject
{
    Q_OBJECT

private:
    /// Writes as much as there is room for.
    class FullDevice : public QIODevice
    {
    public:
        explicit FullDevice(qint64 room)
            : _room(room)
        {
            open(WriteOnly | Unbuffered);
        }

    protected:
        qint64 readData(char*, qint64) override { return -1; }
        qint64 writeData(const char*, qint64 size) override
        {
            const qint64 written = std::min(size, _room);
            _room -= written;
            return written;
        }

    private:
        qint64 _room;
    };

    static bool canBeSent(const osg::NodePtr& root)
    {
        ImportResult result;
        result.root = osg::NodeRefPtr(root);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return ModelStreamWriter(buffer).writeResult(result);
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void scenes_of_every_kind_arrive_as_they_were()
    {
        for (quint32 seed = 1; seed <= 200; ++seed) {
            const ImportResult sent = randomScene(seed, 1 + static_cast<int>(seed));
            const Decoded arrived = decoded(encoded(sent));
            QCOMPARE(arrived.state, State::Complete);
            QCOMPARE(arrived.result.error, QString());
            QCOMPARE(everything(arrived.result), everything(sent));
        }
    }

    void any_portions_give_the_same()
    {
        const ImportResult sent = randomScene(7, 300);
        const QByteArray stream = encoded(sent);
        for (const qsizetype portion : {1, 2, 3, 5, 64, 1000, 4096}) {
            const Decoded arrived = decoded(stream, portion);
            QCOMPARE(arrived.state, State::Complete);
            QCOMPARE(everything(arrived.result), everything(sent));
        }
    }

    void a_shared_mesh_is_sent_once()
    {
        const ImportResult scene = randomScene(3, 40);
        const osg::NodePtr root = scene.root;
        QVERIFY(scene.statistics.meshes > 0);
        const qsizetype before = encoded(scene).size();
        osg::NodePtr shown = osg::NullFC;
        for (const osg::NodePtr& node : SceneOutline::nodes(root)) {
            if (SceneOutline::kindOf(node) == "geometry")
                shown = node;
        }
        constexpr int more = 10;
        for (int i = 0; i < more; ++i)
            root->addChild(osg::makeNodeFor(shown->getCore()));
        // A byte for the kind, four for the level, four for the mesh.
        QCOMPARE(encoded(scene).size(), before + more * 9);
    }

    void a_scene_larger_than_any_frame_arrives()
    {
        const osg::GeometryPtr mesh = osg::Geometry::create();
        ImportResult sent;
        sent.root = osg::NodeRefPtr(osg::makeNodeFor(mesh));
        mesh->setTypes(osg::GeoPTypesPtr(osg::GeoPTypesUI8::create()));
        mesh->setLengths(osg::GeoPLengthsPtr(osg::GeoPLengthsUI32::create()));
        mesh->setIndices(osg::GeoIndicesPtr(osg::GeoIndicesUI32::create()));
        mesh->setPositions(osg::GeoPositionsPtr(osg::GeoPositions3f::create()));
        mesh->setNormals(osg::GeoNormalsPtr(osg::GeoNormals3f::create()));
        constexpr osg::UInt32 vertices = 3 * 100000;
        mesh->getTypes()->push_back(4);
        mesh->getLengths()->push_back(vertices);
        for (osg::UInt32 i = 0; i < vertices; ++i) {
            mesh->getIndices()->push_back(vertices - 1 - i);
            mesh->getPositions()->push_back(osg::Pnt3f(static_cast<float>(i), 1, 2));
            mesh->getNormals()->push_back(osg::Vec3f(0, 0, 1));
        }
        sent.statistics.geometries = 1;
        sent.statistics.meshes = 1;
        sent.statistics.vertices = vertices;
        sent.statistics.faces = vertices / 3;
        const QByteArray stream = encoded(sent);
        QVERIFY(stream.size() > 5 * ModelStream::frameLimit);
        const Decoded arrived = decoded(stream, 65536);
        QCOMPARE(arrived.state, State::Complete);
        QVERIFY(everything(arrived.result) == everything(sent));
    }

    void depth_costs_no_stack()
    {
        constexpr int levels = 200000;
        ImportResult sent;
        sent.root = osg::NodeRefPtr(osg::makeNodeFor(osg::Group::create()));
        osg::NodePtr last = sent.root;
        for (int i = 1; i < levels; ++i) {
            const osg::NodePtr next = osg::makeNodeFor(osg::Group::create());
            last->addChild(next);
            last = next;
        }
        const Decoded arrived = decoded(encoded(sent));
        QCOMPARE(arrived.state, State::Complete);
        int found = 1;
        for (osg::NodePtr node = arrived.result.root; node->getNChildren() > 0; ++found)
            node = node->getChild(0);
        QCOMPARE(found, levels);
        QCOMPARE(arrived.result.statistics.groups, levels);
    }

    void a_failure_arrives_with_its_words()
    {
        ImportResult sent;
        sent.error = QStringLiteral("腕.gltf: „nichts“");
        for (const bool cancelled : {false, true}) {
            sent.cancelled = cancelled;
            const Decoded arrived = decoded(encoded(sent), 1);
            QCOMPARE(arrived.state, State::Complete);
            QCOMPARE(arrived.result.error, sent.error);
            QCOMPARE(arrived.result.cancelled, cancelled);
            QVERIFY(arrived.result.root == osg::NullFC);
        }
    }

    void a_message_comes_out_on_one_line()
    {
        ImportResult sent;
        sent.error = QStringLiteral("two\nlines");
        QCOMPARE(decoded(encoded(sent)).result.error, QStringLiteral("two lines"));
    }

    void progress_never_goes_back()
    {
        QBuffer buffer;
        QVERIFY(buffer.open(QIODevice::WriteOnly));
        ModelStreamWriter writer(buffer);
        ModelStreamReader reader(plenty);
        QList<double> seen;
        qint64 fed = 0;
        for (const double fraction : {0.0, 0.25, 0.125, 1.0}) {
            QVERIFY(writer.writeProgress(fraction));
            QCOMPARE(reader.feed(buffer.data().constData() + fed, buffer.size() - fed),
                     State::Incomplete);
            fed = buffer.size();
            seen += reader.progress();
        }
        QCOMPARE(seen, QList<double>({0.0, 0.25, 0.25, 1.0}));
        QCOMPARE(reader.result().error, QStringLiteral("the model arrived damaged"));
    }

    void a_device_without_room_is_told_of()
    {
        const ImportResult scene = randomScene(5, 50);
        const qsizetype whole = encoded(scene).size();
        for (qint64 room = 0; room < whole; room += 1 + whole / 200) {
            FullDevice device(room);
            ModelStreamWriter writer(device);
            writer.writeProgress(0.5);
            QVERIFY(!writer.writeResult(scene));
        }
        FullDevice device(whole);
        ModelStreamWriter writer(device);
        QVERIFY(writer.writeProgress(0.5));
        QVERIFY(writer.writeResult(scene));
    }

    void what_no_importer_makes_is_not_sent()
    {
        QVERIFY(!canBeSent(osg::NullFC));
        QVERIFY(!canBeSent(osg::Node::create()));
        QVERIFY(!canBeSent(osg::makeNodeFor(osg::Geometry::create())));
        const osg::NodePtr named = osg::makeNodeFor(osg::Group::create());
        osg::setName(named, std::string(ModelStream::nameLimit, 'n'));
        QVERIFY(canBeSent(named));
        const osg::NodePtr tooLong = osg::makeNodeFor(osg::Group::create());
        osg::setName(tooLong, std::string(ModelStream::nameLimit + 1, 'n'));
        QVERIFY(!canBeSent(tooLong));
    }
};

QTEST_APPLESS_MAIN(tst_model_stream)
#include "tst_model_stream.moc"
