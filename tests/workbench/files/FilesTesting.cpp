// SPDX-License-Identifier: MIT
#include "FilesTesting.h"

#include "host/scene/MO_PegModule.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int patience = 30000;

} // namespace

DocumentStage::DocumentStage()
{
    session.openScene(QStringLiteral("scene"));
}

QString DocumentStage::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(name));
    return file.fileName();
}

QString DocumentStage::writeModel(const QString& name, const QByteArrayList& subnodes) const
{
    QByteArray text;
    int vertex = 1;
    for (const QByteArray& subnode : subnodes) {
        text += "o " + subnode + "\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf " + QByteArray::number(vertex) +
                ' ' + QByteArray::number(vertex + 1) + ' ' + QByteArray::number(vertex + 2) + '\n';
        vertex += 3;
    }
    return write(name, text);
}

MO_Node* DocumentStage::addPeg(const QString& name)
{
    MO_Node* peg = root().insertNode(std::make_unique<MO_PegModule>(name));
    notify();
    return peg;
}

MO_ElementModule* DocumentStage::element(int index) const
{
    return dynamic_cast<MO_ElementModule*>(root().nodes().at(static_cast<std::size_t>(index)));
}

bool DocumentStage::open(const QString& path, QString* message)
{
    QSignalSpy finished(&document, &SceneDocument::openFinished);
    document.open(path);
    if (!QTest::qWaitFor([&] { return finished.count() > 0; }, patience))
        return false;
    if (message)
        *message = finished.first().at(1).toString();
    return finished.first().at(0).toBool();
}

bool DocumentStage::load(const QString& path)
{
    bool hasLoaded = false;
    const QObject context;
    QObject::connect(&loader, &ModelLoader::loaded, &context, [&] { hasLoaded = true; });
    QSignalSpy finished(&loader, &ModelLoader::finished);
    loader.load({path});
    return QTest::qWaitFor([&] { return finished.count() > 0; }, patience) && hasLoaded;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
