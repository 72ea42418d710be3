// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/workbench/SubnodeRecords.h"
#include "workbench/batch/Dump.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

using namespace ModelBuilder;
using namespace SubnodeRecords;

namespace {

using Nodes = std::vector<ListedNode>;
using Listings = std::vector<std::pair<QString, Nodes>>;

QString dumped(Dump::Format format, const Listings& listings, int frame = 1)
{
    QString text;
    QTextStream out(&text);
    {
        Dump dump(out, format, frame);
        for (const auto& [element, nodes] : listings)
            dump.writeModel(element, nodes);
    }
    out.flush();
    return text;
}

QJsonObject parsed(const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("%s", qPrintable(error.errorString()));
    return document.object();
}

/// Every mark there is.
ListedNode markedNode()
{
    return {.name = QStringLiteral("hand"),
            .type = QStringLiteral("KeyTransform"),
            .depth = 2,
            .isKey = true,
            .disabled = true,
            .shapeHidden = true,
            .hasProperties = true,
            .selected = true};
}

ListedNode plainNode(const QString& name)
{
    return {.name = name, .type = QStringLiteral("Group")};
}

} // namespace

class tst_dump : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void text_has_a_line_for_each_node_below_its_element();
    void text_says_each_mark_in_a_word_data();
    void text_says_each_mark_in_a_word();
    void a_node_without_a_name_or_a_core_is_still_a_line();
    void a_name_never_breaks_its_line();
    void json_has_a_line_for_each_node();
    void json_has_these_members_and_no_others();
    void json_says_each_mark();
    void names_come_back_from_json_as_they_were_data();
    void names_come_back_from_json_as_they_were();
    void names_are_not_taken_for_ascii();
    void without_models_there_is_nothing_to_say();
    void a_model_without_nodes_is_named();
    void models_keep_their_order();
    void hiding_a_node_changes_just_its_line_data();
    void hiding_a_node_changes_just_its_line();
    void is_the_same_every_time();
};

void tst_dump::text_has_a_line_for_each_node_below_its_element()
{
    Nodes nodes{plainNode(QStringLiteral("scene")), markedNode()};
    QCOMPARE(dumped(Dump::Text, {{QStringLiteral("robot"), nodes}}),
             QStringLiteral("robot\n  scene [Group]\n    hand [KeyTransform] key disabled "
                            "shape-hidden properties selected\n"));
}

void tst_dump::text_says_each_mark_in_a_word_data()
{
    QTest::addColumn<int>("mark");
    QTest::addColumn<QString>("word");
    QTest::newRow("nothing") << -1 << QString();
    QTest::newRow("key") << 0 << " key";
    QTest::newRow("disabled") << 1 << " disabled";
    QTest::newRow("shape hidden") << 2 << " shape-hidden";
    QTest::newRow("properties") << 3 << " properties";
    QTest::newRow("selected") << 4 << " selected";
}

void tst_dump::text_says_each_mark_in_a_word()
{
    QFETCH(const int, mark);
    QFETCH(const QString, word);
    ListedNode node = plainNode(QStringLiteral("arm"));
    node.isKey = mark == 0;
    node.disabled = mark == 1;
    node.shapeHidden = mark == 2;
    node.hasProperties = mark == 3;
    node.selected = mark == 4;
    QCOMPARE(dumped(Dump::Text, {{QStringLiteral("m"), {node}}}),
             QStringLiteral("m\n  arm [Group]%1\n").arg(word));
}

void tst_dump::a_node_without_a_name_or_a_core_is_still_a_line()
{
    QCOMPARE(dumped(Dump::Text, {{QStringLiteral("m"), {ListedNode()}}}),
             QStringLiteral("m\n  (no name) [no core]\n"));
    const QJsonObject json = parsed(dumped(Dump::Json, {{QStringLiteral("m"), {ListedNode()}}}));
    const QJsonObject node = json["models"][0]["nodes"][0].toObject();
    QCOMPARE(node["name"], QJsonValue(QString()));
    QCOMPARE(node["type"], QJsonValue(QString()));
}

void tst_dump::a_name_never_breaks_its_line()
{
    const QString name = QStringLiteral("a\nb\tc\r\u007f\u0085d");
    QCOMPARE(dumped(Dump::Text, {{name, {plainNode(name)}}}),
             QStringLiteral("a\\x0ab\\x09c\\x0d\\x7f\\x85d\n"
                            "  a\\x0ab\\x09c\\x0d\\x7f\\x85d [Group]\n"));
    const QString json = dumped(Dump::Json, {{name, {plainNode(name)}}});
    QCOMPARE(json.count(u'\n'),
             dumped(Dump::Json, {{QString(), {plainNode(QString())}}}).count(u'\n'));
}

void tst_dump::json_has_a_line_for_each_node()
{
    const Nodes nodes{plainNode(QStringLiteral("scene")), markedNode()};
    QCOMPARE(
        dumped(Dump::Json, {{QStringLiteral("robot"), nodes}, {QStringLiteral("crane"), {}}}, 7),
        QStringLiteral("{\n\"format\": \"subnode-dump\",\n\"version\": 1,\n\"frame\": 7,\n"
                       "\"models\": [\n"
                       "{\"element\": \"robot\", \"nodes\": [\n"
                       "{\"depth\":1,\"disabled\":false,\"key\":false,\"name\":\"scene\","
                       "\"properties\":false,\"selected\":false,\"shapeHidden\":false,"
                       "\"type\":\"Group\"},\n"
                       "{\"depth\":2,\"disabled\":true,\"key\":true,\"name\":\"hand\","
                       "\"properties\":true,\"selected\":true,\"shapeHidden\":true,"
                       "\"type\":\"KeyTransform\"}\n"
                       "]},\n"
                       "{\"element\": \"crane\", \"nodes\": []}\n"
                       "]\n}\n"));
}

void tst_dump::json_has_these_members_and_no_others()
{
    const QJsonObject json =
        parsed(dumped(Dump::Json, {{QStringLiteral("robot"), {markedNode()}}}, 12));
    QCOMPARE(json.keys(), (QStringList{"format", "frame", "models", "version"}));
    QCOMPARE(json["format"], QJsonValue("subnode-dump"));
    QCOMPARE(json["version"], QJsonValue(1));
    QCOMPARE(json["frame"], QJsonValue(12));
    const QJsonObject entry = json["models"][0].toObject();
    QCOMPARE(entry.keys(), (QStringList{"element", "nodes"}));
    QCOMPARE(entry["element"], QJsonValue("robot"));
    QCOMPARE(entry["nodes"][0].toObject().keys(),
             (QStringList{"depth", "disabled", "key", "name", "properties", "selected",
                          "shapeHidden", "type"}));
}

void tst_dump::json_says_each_mark()
{
    const auto node = [](const ListedNode& listed) {
        return parsed(
                   dumped(Dump::Json, {{QStringLiteral("m"), {listed}}}))["models"][0]["nodes"][0]
            .toObject();
    };
    const auto withMark = [](bool ListedNode::*mark) {
        ListedNode listed = plainNode(QStringLiteral("arm"));
        listed.*mark = true;
        return listed;
    };
    const std::pair<bool ListedNode::*, const char*> marks[] = {
        {&ListedNode::isKey, "key"},
        {&ListedNode::disabled, "disabled"},
        {&ListedNode::shapeHidden, "shapeHidden"},
        {&ListedNode::hasProperties, "properties"},
        {&ListedNode::selected, "selected"}};
    for (const auto& [mark, member] : marks) {
        QJsonObject expected = node(plainNode(QStringLiteral("arm")));
        QCOMPARE(expected[QLatin1String(member)], QJsonValue(false));
        expected[QLatin1String(member)] = true;
        QCOMPARE(node(withMark(mark)), expected);
    }
}

void tst_dump::names_come_back_from_json_as_they_were_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QString();
    QTest::newRow("quotes") << "the \"big\" one";
    QTest::newRow("backslashes") << "C:\\parts\\\"";
    QTest::newRow("control characters") << QStringLiteral("a\nb\tc\r\u0001\u001f\u007f");
    QTest::newRow("what looks like the document") << "\"},\n{\"name\": \"x\"";
    QTest::newRow("brackets") << "]}, [";
    QTest::newRow("not ASCII") << QStringLiteral("bras_d\u00e9pli\u00e9");
    QTest::newRow("line separators") << QStringLiteral("a\u2028b\u2029");
    QTest::newRow("two units a character") << QStringLiteral("\U0001f916");
    QTest::newRow("a place marker") << "%1 %2";
}

void tst_dump::names_come_back_from_json_as_they_were()
{
    QFETCH(const QString, name);
    const QJsonObject json = parsed(dumped(Dump::Json, {{name, {plainNode(name)}}}));
    QCOMPARE(json["models"][0]["element"].toString(), name);
    QCOMPARE(json["models"][0]["nodes"][0]["name"].toString(), name);
    QCOMPARE(json["models"].toArray().size(), 1);
    QCOMPARE(json["models"][0]["nodes"].toArray().size(), 1);
}

void tst_dump::names_are_not_taken_for_ascii()
{
    const QString name = QStringLiteral("bras_d\u00e9pli\u00e9 \U0001f916");
    QCOMPARE(dumped(Dump::Text, {{name, {plainNode(name)}}}),
             QStringLiteral("%1\n  %1 [Group]\n").arg(name));
    QVERIFY(dumped(Dump::Json, {{name, {plainNode(name)}}}).contains(name));
}

void tst_dump::without_models_there_is_nothing_to_say()
{
    QCOMPARE(dumped(Dump::Text, {}), QString());
    const QJsonObject json = parsed(dumped(Dump::Json, {}));
    QVERIFY(json["models"].isArray());
    QCOMPARE(json["models"].toArray(), QJsonArray());
    QCOMPARE(json["frame"], QJsonValue(1));
}

void tst_dump::a_model_without_nodes_is_named()
{
    QCOMPARE(dumped(Dump::Text, {{QStringLiteral("m"), {}}}), QStringLiteral("m\n"));
    const QJsonObject json = parsed(dumped(Dump::Json, {{QStringLiteral("m"), {}}}));
    QCOMPARE(json["models"][0]["nodes"], QJsonValue(QJsonArray()));
}

void tst_dump::models_keep_their_order()
{
    const Listings listings{{QStringLiteral("b"), {plainNode(QStringLiteral("1"))}},
                            {QStringLiteral("a"), {}},
                            {QStringLiteral("c"), {plainNode(QStringLiteral("2"))}}};
    QCOMPARE(dumped(Dump::Text, listings), QStringLiteral("b\n  1 [Group]\na\nc\n  2 [Group]\n"));
    QStringList elements;
    for (const QJsonValue& entry : parsed(dumped(Dump::Json, listings))["models"].toArray())
        elements += entry["element"].toString();
    QCOMPARE(elements, (QStringList{"b", "a", "c"}));
}

void tst_dump::hiding_a_node_changes_just_its_line_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("text") << int(Dump::Text);
    QTest::newRow("json") << int(Dump::Json);
}

void tst_dump::hiding_a_node_changes_just_its_line()
{
    QFETCH(const int, format);
    const auto scene = model(key("body", {key("arm", {key("hand")}), key("leg")}));
    AT_ModelData settings;
    ListingOptions options;
    options.settings = &settings;
    const auto lines = [&] {
        const Nodes nodes = listNodes(scene->rootNodePtr(), options);
        return dumped(Dump::Format(format), {{QStringLiteral("robot"), nodes}}).split(u'\n');
    };
    for (const char* name : {"body", "arm", "hand", "leg"}) {
        const QStringList before = lines();
        settings.setNodeData(AT_ModelNodeKey(QString::fromLatin1(name)), off);
        const QStringList after = lines();
        QCOMPARE(after.size(), before.size());
        QStringList changed;
        for (qsizetype i = 0; i < after.size(); ++i) {
            if (after.at(i) != before.at(i))
                changed += after.at(i);
        }
        QCOMPARE(changed.size(), 1);
        QVERIFY2(changed.first().contains(QLatin1String(name)), qPrintable(changed.first()));
    }
}

void tst_dump::is_the_same_every_time()
{
    for (quint32 seed = 0; seed < 20; ++seed) {
        const auto random = randomModel(seed, 60);
        ListingOptions options;
        options.everyNode = true;
        const Nodes nodes = listNodes(random->rootNodePtr(), options);
        for (const Dump::Format format : {Dump::Text, Dump::Json}) {
            QCOMPARE(
                dumped(format, {{QStringLiteral("m"), nodes}}),
                dumped(format, {{QStringLiteral("m"), listNodes(random->rootNodePtr(), options)}}));
        }
    }
}

QTEST_APPLESS_MAIN(tst_dump)
#include "tst_dump.moc"
