// SPDX-License-Identifier: MIT
#include "StreamTesting.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QDataStream>
#include <QElapsedTimer>
#include <QTest>
#include <cmath>
#include <limits>
#include <random>

using namespace StreamTesting;
using ModelStream::Frame;
using ModelStream::Kind;
using State = ModelStreamReader::State;

namespace {

/// Streams that no writer writes, one number after the other.
class Forgery
{
public:
    Forgery()
    {
        _bytes.append(ModelStream::magic, sizeof ModelStream::magic);
        append(_bytes, ModelStream::version);
    }

    template <class... Numbers>
    Forgery& frame(Frame kind, Numbers... numbers)
    {
        QByteArray content;
        append(content, numbers...);
        append(_bytes, static_cast<quint8>(kind), static_cast<quint32>(content.size()));
        _bytes += content;
        return *this;
    }
    Forgery& group(quint32 level) { return frame(Frame::Nodes, quint8(Kind::Group), level); }
    Forgery& named(Kind kind, quint32 level, const QByteArray& name)
    {
        QByteArray content;
        append(content, quint8(quint8(kind) | ModelStream::namedBit), level,
               static_cast<quint32>(name.size()));
        return raw(Frame::Nodes, content + name);
    }
    Forgery& raw(Frame kind, const QByteArray& content)
    {
        append(_bytes, static_cast<quint8>(kind), static_cast<quint32>(content.size()));
        _bytes += content;
        return *this;
    }
    /// One triangle, and where to put what is wrong.
    Forgery& triangle(quint8 type = 4, quint32 length = 3, quint32 index = 2, float x = 1.0F)
    {
        return frame(Frame::Mesh, 1U, 3U, 3U)
            .frame(Frame::Types, type)
            .frame(Frame::Lengths, length)
            .frame(Frame::Indices, 0U, 1U, index)
            .frame(Frame::Positions, x, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F)
            .frame(Frame::Normals, x, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F);
    }
    Forgery& geometry(quint32 level, quint32 mesh)
    {
        return frame(Frame::Nodes, quint8(Kind::Geometry), level, mesh);
    }
    Forgery& end(quint32 nodes, quint32 meshes, quint32 renamed = 0)
    {
        return frame(Frame::End, nodes, meshes, renamed);
    }
    const QByteArray& bytes() const { return _bytes; }

private:
    template <class... Numbers>
    static void append(QByteArray& bytes, Numbers... numbers)
    {
        QDataStream stream(&bytes, QIODevice::Append);
        stream.setByteOrder(QDataStream::LittleEndian);
        stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
        static_cast<void>((stream << ... << numbers));
    }

    QByteArray _bytes;
};

constexpr quint32 huge = std::numeric_limits<quint32>::max();

} // namespace

class tst_damaged_streams : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void what_the_damaged_ones_are_made_of_is_sound()
    {
        // Otherwise the rows below would be refused for another reason than the one they name.
        QCOMPARE(decoded(Forgery().group(0).end(1, 0).bytes()).state, State::Complete);
        QCOMPARE(decoded(Forgery().triangle().geometry(0, 0).end(1, 1).bytes()).state,
                 State::Complete);
        QCOMPARE(
            decoded(
                Forgery().named(Kind::Group, 0, "A").named(Kind::Group, 1, "B").end(2, 0).bytes())
                .state,
            State::Complete);
        QCOMPARE(decoded(Forgery().triangle(1, 3).bytes()).state, State::Incomplete);
    }

    void one_thing_that_is_wrong_data()
    {
        QTest::addColumn<QByteArray>("stream");
        const auto row = [](const char* name, const Forgery& forgery) {
            QTest::newRow(name) << forgery.bytes();
        };
        const float nan = std::nanf("");
        const float infinity = std::numeric_limits<float>::infinity();

        QTest::newRow("no magic") << QByteArray("Something else, and more of it");
        QByteArray version = Forgery().group(0).end(1, 0).bytes();
        version[sizeof ModelStream::magic] = 2;
        QTest::newRow("another version") << version;
        row("unknown frame", Forgery().frame(Frame(77)));
        row("frame kind 0", Forgery().frame(Frame(0)));
        row("progress beyond 1", Forgery().frame(Frame::Progress, 1.5F));
        row("negative progress", Forgery().frame(Frame::Progress, -0.5F));
        row("progress that is no number", Forgery().frame(Frame::Progress, nan));
        row("short progress", Forgery().frame(Frame::Progress, quint8(0)));
        row("long progress", Forgery().frame(Frame::Progress, 0.5F, 0.5F));
        row("empty failure", Forgery().frame(Frame::Failure));
        row("failure without words", Forgery().frame(Frame::Failure, quint8(0)));
        row("failure of a third kind", Forgery().raw(Frame::Failure, "\x02no"));
        row("failure after nodes", Forgery().group(0).raw(Frame::Failure, QByteArray("\0no", 3)));
        row("failure in a mesh",
            Forgery().frame(Frame::Mesh, 1U, 1U, 1U).raw(Frame::Failure, QByteArray("\0no", 3)));

        row("no nodes", Forgery().end(0, 0));
        row("root below nothing", Forgery().group(1).end(1, 0));
        row("second root", Forgery().group(0).group(0).end(2, 0));
        row("level left out", Forgery().group(0).group(2).end(2, 0));
        row("level beyond measure", Forgery().group(0).group(huge).end(2, 0));
        row("node of no kind", Forgery().frame(Frame::Nodes, quint8(0), 0U).end(1, 0));
        row("node of unknown kind", Forgery().frame(Frame::Nodes, quint8(9), 0U).end(1, 0));
        row("half a node", Forgery().frame(Frame::Nodes, quint8(Kind::Group)).end(1, 0));
        row("half a matrix",
            Forgery().frame(Frame::Nodes, quint8(Kind::Transform), 0U, 1.0F).end(1, 0));
        row("matrix that is not finite",
            Forgery()
                .frame(Frame::Nodes, quint8(Kind::Transform), 0U, infinity, 0.0F, 0.0F, 0.0F, 0.0F,
                       0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F)
                .end(1, 0));
        row("part without a name",
            Forgery()
                .frame(Frame::Nodes, quint8(Kind::KeyTransform), 0U, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F,
                       0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F)
                .end(1, 0));
        row("empty name", Forgery().named(Kind::Group, 0, "").end(1, 0));
        row("name with a zero", Forgery().named(Kind::Group, 0, QByteArray("a\0b", 3)).end(1, 0));
        row("name twice",
            Forgery().named(Kind::Group, 0, "A").named(Kind::Group, 1, "A").end(2, 0));
        row("name too long",
            Forgery().named(Kind::Group, 0, QByteArray(ModelStream::nameLimit + 1, 'n')).end(1, 0));
        row("name longer than its frame",
            Forgery()
                .frame(Frame::Nodes, quint8(quint8(Kind::Group) | ModelStream::namedBit), 0U, 9U,
                       quint8('n'))
                .end(1, 0));

        row("child below geometry", Forgery().triangle().geometry(0, 0).group(1).end(2, 1));
        row("geometry without a mesh", Forgery().geometry(0, 0).end(1, 0));
        row("mesh that does not exist", Forgery().triangle().geometry(0, 1).end(1, 1));
        row("mesh that nobody shows", Forgery().triangle().group(0).end(1, 1));
        row("second mesh before the first is shown", Forgery().triangle().triangle());
        row("values outside a mesh", Forgery().frame(Frame::Types, quint8(4)));
        row("unknown primitive", Forgery().triangle(5).geometry(0, 0).end(1, 1));
        row("half a face", Forgery().triangle(1, 3).geometry(0, 0).end(1, 1));
        row("empty primitive", Forgery().triangle(4, 0).geometry(0, 0).end(1, 1));
        row("polygon of three", Forgery().triangle(9, 3).geometry(0, 0).end(1, 1));
        row("more corners than indices", Forgery().triangle(4, 6).geometry(0, 0).end(1, 1));
        row("corners without end", Forgery().triangle(0, huge).geometry(0, 0).end(1, 1));
        row("index without a vertex", Forgery().triangle(4, 3, 3).geometry(0, 0).end(1, 1));
        row("position that is no number",
            Forgery().triangle(4, 3, 2, nan).geometry(0, 0).end(1, 1));
        row("infinite position", Forgery().triangle(4, 3, 2, infinity).geometry(0, 0).end(1, 1));
        row("infinite normal", Forgery()
                                   .frame(Frame::Mesh, 0U, 0U, 1U)
                                   .frame(Frame::Positions, 0.0F, 0.0F, 0.0F)
                                   .frame(Frame::Normals, 0.0F, infinity, 0.0F)
                                   .geometry(0, 0)
                                   .end(1, 1));
        row("more values than announced",
            Forgery().frame(Frame::Mesh, 1U, 0U, 0U).frame(Frame::Types, quint8(0), quint8(0)));
        row("half a value",
            Forgery().frame(Frame::Mesh, 0U, 2U, 0U).frame(Frame::Indices, quint8(0)));
        row("mesh that is not whole",
            Forgery().frame(Frame::Mesh, 1U, 0U, 0U).geometry(0, 0).end(1, 1));

        row("wrong number of nodes", Forgery().group(0).end(2, 0));
        row("wrong number of meshes", Forgery().triangle().geometry(0, 0).end(1, 2));
        row("more renamed than there are", Forgery().group(0).end(1, 0, 2));
        row("short end", Forgery().group(0).frame(Frame::End, 1U, 0U));
        row("something after the end", Forgery().group(0).end(1, 0).frame(Frame::Progress, 1.0F));
        row("something after a failure",
            Forgery().raw(Frame::Failure, QByteArray("\0no", 3)).group(0));
    }
    void one_thing_that_is_wrong()
    {
        QFETCH(const QByteArray, stream);
        for (const qsizetype portion : {0, 1}) {
            const Decoded arrived = decoded(stream, portion);
            QCOMPARE(arrived.state, State::Damaged);
            QVERIFY(!arrived.result.succeeded());
            QVERIFY(arrived.result.root == osg::NullFC);
        }
    }

    void a_stream_that_ends_too_soon_is_not_complete()
    {
        const QByteArray stream = encoded(smallScene());
        QCOMPARE(decoded(stream).state, State::Complete);
        for (qsizetype size = 0; size < stream.size(); ++size) {
            const Decoded arrived = decoded(stream.left(size));
            QCOMPARE(arrived.state, State::Incomplete);
            QVERIFY(!arrived.result.succeeded());
            QVERIFY(arrived.result.root == osg::NullFC);
        }
    }

    void what_came_is_let_go_once_the_stream_is_damaged()
    {
        ModelStreamReader reader(plenty);
        const QByteArray stream = Forgery().group(0).group(0).bytes();
        QCOMPARE(reader.feed(stream.constData(), stream.size()), State::Damaged);
        const QByteArray rest = Forgery().group(0).end(1, 0).bytes();
        QCOMPARE(reader.feed(rest.constData(), rest.size()), State::Damaged);
    }

    void announced_sizes_are_refused_before_they_cost_anything()
    {
        QElapsedTimer timer;
        timer.start();
        const auto refused = [](const Forgery& forgery, qint64 memory) {
            return decoded(forgery.bytes(), 0, memory).state == State::Damaged;
        };
        QVERIFY(refused(Forgery().frame(Frame::Mesh, huge, huge, huge), plenty));
        QVERIFY(refused(Forgery().frame(Frame::Mesh, 0U, 0U, huge), plenty));
        QVERIFY(refused(Forgery().frame(Frame::Mesh, 0U, huge, 0U), plenty));
        QByteArray longFrame = Forgery().bytes();
        longFrame += QByteArray("\x09\xff\xff\xff\xff", 5);
        QCOMPARE(decoded(longFrame).state, State::Damaged);
        // What the limit allows is still not taken before it comes.
        constexpr qint64 muchMore = std::numeric_limits<qint64>::max() / 2;
        QCOMPARE(decoded(Forgery().frame(Frame::Mesh, huge, huge, huge).bytes(), 0, muchMore).state,
                 State::Incomplete);
        QVERIFY(timer.elapsed() < 1000);
    }

    void the_scene_takes_no_more_memory_than_allowed()
    {
        Forgery forgery;
        forgery.group(0);
        for (int i = 0; i < 1000; ++i)
            forgery.group(1);
        forgery.end(1001, 0);
        QCOMPARE(decoded(forgery.bytes()).state, State::Complete);
        QCOMPARE(decoded(forgery.bytes(), 0, 100000).state, State::Damaged);
        const QByteArray named =
            Forgery().named(Kind::Group, 0, QByteArray(10000, 'n')).end(1, 0).bytes();
        QCOMPARE(decoded(named, 0, 20000).state, State::Complete);
        QCOMPARE(decoded(named, 0, 9000).state, State::Damaged);
    }

    void any_byte_may_be_wrong()
    {
        const QByteArray stream = encoded(smallScene());
        int refused = 0;
        for (qsizetype at = 0; at < stream.size(); ++at) {
            for (const int change : {0x01, 0x80, 0xff}) {
                QByteArray damaged = stream;
                damaged[at] = static_cast<char>(damaged[at] ^ change);
                const Decoded arrived = decoded(damaged);
                QCOMPARE(arrived.result.succeeded(), arrived.result.root != osg::NullFC);
                refused += !arrived.result.succeeded();
            }
        }
        // Names, coordinates and the like may be anything; the rest holds the scene together.
        QVERIFY(refused > stream.size() / 2);
    }

    void any_bytes_may_come()
    {
        const QByteArray stream = encoded(randomScene(11, 60));
        std::mt19937 random(1);
        for (int round = 0; round < 3000; ++round) {
            QByteArray damaged = stream;
            for (std::size_t changes = 1 + random() % 4; changes > 0; --changes) {
                const auto at = static_cast<qsizetype>(random() % damaged.size());
                const auto size = static_cast<qsizetype>(random() % 20);
                if (random() % 3 == 0)
                    damaged.remove(at, size);
                else if (random() % 2 == 0)
                    damaged.insert(
                        at, damaged.mid(static_cast<qsizetype>(random() % stream.size()), size));
                else
                    damaged[at] = static_cast<char>(random());
            }
            const Decoded arrived = decoded(damaged);
            QCOMPARE(arrived.result.succeeded(), arrived.result.root != osg::NullFC);
            QCOMPARE(arrived.result.succeeded(), arrived.state == State::Complete);
        }
    }
};

QTEST_APPLESS_MAIN(tst_damaged_streams)
#include "tst_damaged_streams.moc"
