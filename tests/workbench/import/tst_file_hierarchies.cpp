// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QXmlStreamReader>
#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/scene.h>
#include <functional>
#include <utility>

namespace {

/// A node of a file: how deep it is and what it is called; empty if it has no name.
struct Place
{
    int depth;
    QByteArray name;
};
using Places = QList<Place>;

Places placesOf(const osg::NodePtr& root)
{
    Places places;
    QList<std::pair<osg::NodePtr, int>> pending{{root, 0}};
    while (!pending.isEmpty()) {
        const auto [node, depth] = pending.takeLast();
        // Meshes are no nodes in the files.
        if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC)
            continue;
        places.append({depth, SceneOutline::nameOf(node)});
        for (osg::UInt32 i = node->getNChildren(); i-- > 0;)
            pending.append({node->getChild(i), depth + 1});
    }
    return places;
}

Places placesInGltf(const QByteArray& text)
{
    const QByteArray json = text.startsWith("glTF")
                                ? text.mid(20, *reinterpret_cast<const qint32*>(text.data() + 12))
                                : text;
    const QJsonObject file = QJsonDocument::fromJson(json).object();
    const QJsonArray nodes = file["nodes"].toArray();
    const QJsonArray roots = file["scenes"][file["scene"].toInt()]["nodes"].toArray();
    Places places;
    QList<std::pair<int, int>> pending;
    // Several roots get one above them.
    if (roots.size() > 1)
        places.append({0, "ROOT"});
    const auto add = [&pending](const QJsonArray& numbers, int depth) {
        for (qsizetype i = numbers.size(); i-- > 0;)
            pending.append({numbers[i].toInt(), depth});
    };
    add(roots, roots.size() > 1 ? 1 : 0);
    while (!pending.isEmpty()) {
        const auto [number, depth] = pending.takeLast();
        places.append({depth, nodes[number]["name"].toString().toUtf8()});
        add(nodes[number]["children"].toArray(), depth + 1);
    }
    return places;
}

Places placesInCollada(const QByteArray& text)
{
    Places places;
    QXmlStreamReader xml(text);
    int depth = 0;
    bool inScene = false;
    while (!xml.atEnd()) {
        xml.readNext();
        const bool isScene = xml.name() == QLatin1String("visual_scene");
        if (!isScene && !(inScene && xml.name() == QLatin1String("node")))
            continue;
        if (xml.isStartElement()) {
            inScene = true;
            const auto attributes = xml.attributes();
            QByteArray name = attributes.value("name").toUtf8();
            if (name.isEmpty())
                name = isScene ? "Scene" : attributes.value("id").toUtf8();
            places.append({depth++, name});
        } else if (xml.isEndElement()) {
            --depth;
            inScene = !isScene;
        }
    }
    return places;
}

Places placesInAssimp(const QString& path)
{
    Assimp::Importer importer;
    importer.SetPropertyBool(AI_CONFIG_IMPORT_NO_SKELETON_MESHES, true);
    const aiScene* const scene = importer.ReadFile(path.toStdString(), 0);
    Places places;
    QList<std::pair<const aiNode*, int>> pending;
    if (scene)
        pending.append({scene->mRootNode, 0});
    while (!pending.isEmpty()) {
        const auto [node, depth] = pending.takeLast();
        places.append({depth, QByteArray(node->mName.data, node->mName.length)});
        for (unsigned i = node->mNumChildren; i-- > 0;)
            pending.append({node->mChildren[i], depth + 1});
    }
    return places;
}

/// Whether a name is the one in the file, perhaps with the number that doubled names get.
bool isNameFrom(const QByteArray& name, const QByteArray& inFile)
{
    if (name == inFile)
        return true;
    if (inFile.isEmpty() || !name.startsWith(inFile + "_"))
        return false;
    bool isNumber = false;
    name.mid(inFile.size() + 1).toUInt(&isNumber);
    return isNumber;
}

QString difference(const Places& imported, const Places& inFile)
{
    for (qsizetype i = 0; i < qMin(imported.size(), inFile.size()); ++i) {
        if (imported[i].depth != inFile[i].depth || !isNameFrom(imported[i].name, inFile[i].name)) {
            return QString("node %1 is '%2' at depth %3, in the file '%4' at depth %5")
                .arg(i)
                .arg(QString::fromUtf8(imported[i].name))
                .arg(imported[i].depth)
                .arg(QString::fromUtf8(inFile[i].name))
                .arg(inFile[i].depth);
        }
    }
    if (imported.size() != inFile.size())
        return QString("%1 nodes, in the file %2").arg(imported.size()).arg(inFile.size());
    return {};
}

} // namespace

/// Holds imported hierarchies against what other readers find in the same files.
class tst_file_hierarchies : public QObject
{
    Q_OBJECT

private:
    const QString _models = QStringLiteral(SUBNODEVIEWS_ASSIMP_MODELS);

    /// A row for each file of the folder that can be read at all and that the test can read for
    /// itself; there must be enough of them for the comparison to mean something.
    void addFiles(const QString& folder, const QStringList& patterns, qsizetype atLeast)
    {
        QTest::addColumn<QString>("path");
        QStringList paths;
        QDirIterator files(_models + "/" + folder, patterns, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            paths += files.next();
        paths.sort();
        paths.removeIf([](const QString& path) {
            return repeatsNodes(path) || !ModelImporter::importModel(path).succeeded();
        });
        QVERIFY2(paths.size() >= atLeast, qPrintable(QString::number(paths.size())));
        for (const QString& path : std::as_const(paths))
            QTest::newRow(qPrintable(path.mid(_models.size() + 1))) << path;
    }

    /// Collada files may show a node again by reference, which their nesting alone does not tell.
    static bool repeatsNodes(const QString& path)
    {
        QFile file(path);
        return path.endsWith(".dae", Qt::CaseInsensitive) && file.open(QIODevice::ReadOnly) &&
               file.readAll().contains("<instance_node");
    }

    void compare(const QString& path, const std::function<Places(const QByteArray&)>& read)
    {
        const ImportResult result = ModelImporter::importModel(path);
        QVERIFY2(result.succeeded(), qPrintable(result.error));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString found = difference(placesOf(result.root), read(file.readAll()));
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        QVERIFY2(!_models.isEmpty() && QDir(_models).exists(),
                 "The package assimp-testmodels is missing: install it and configure again.");
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void gltf_data() { addFiles("glTF2", {"*.gltf", "*.glb"}, 10); }
    void gltf()
    {
        QFETCH(const QString, path);
        compare(path, placesInGltf);
    }

    void collada_data() { addFiles("Collada", {"*.dae", "*.DAE"}, 10); }
    void collada()
    {
        QFETCH(const QString, path);
        compare(path, placesInCollada);
    }

    void fbx_data() { addFiles("FBX", {"*.fbx", "*.FBX"}, 10); }
    void fbx()
    {
        QFETCH(const QString, path);
        compare(path, [&](const QByteArray&) { return placesInAssimp(path); });
    }
};

QTEST_APPLESS_MAIN(tst_file_hierarchies)
#include "tst_file_hierarchies.moc"
