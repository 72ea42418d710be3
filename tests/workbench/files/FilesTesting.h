// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/files/ModelLoader.h"
#include "workbench/files/SceneDocument.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <memory>

class ModelLibrary;

/// Everything that the host knows of the session's scene, as text to be compared: nodes, ports,
/// attributes, exposures with the scene graphs of their models, settings, links, selection, frame.
QString dumpOf(HostSession& session, const ModelLibrary& library);

/// A session with an empty scene, its document, and a folder to put files into.
class DocumentStage
{
public:
    DocumentStage();

    HostSession session;
    ModelLoader loader{session};
    SceneDocument document{session, loader};
    QTemporaryDir folder;

    QString path(const QString& name) const { return folder.filePath(name); }
    /// The whole path of the file, which has the content.
    QString write(const QString& name, const QByteArray& content) const;
    /// A model file whose subnodes have the names.
    QString writeModel(const QString& name, const QByteArrayList& subnodes) const;

    MO_GroupModule& root() const { return *session.currentScene()->rootGroup(); }
    void notify() { session.context().changeManager()->notify(); }
    MO_Node* addPeg(const QString& name);
    MO_ElementModule* element(int index) const;
    QString dump() { return dumpOf(session, loader.library()); }

    /// Open and load until it is done. The message is that of openFinished().
    bool open(const QString& path, QString* message = nullptr);
    bool load(const QString& path);
};

QByteArray contentOf(const QString& path);
