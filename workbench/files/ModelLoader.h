// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/files/ModelImportJob.h"

#include <QObject>
#include <QStringList>

class HostSession;
class MO_ElementModule;

/// Brings model files into the session's scene, one after the other, each as an element that shows
/// the model on every frame. The element is named after its file. The first one is selected when
/// nothing is. A file that cannot be read leaves the scene as it was.
class ModelLoader : public QObject
{
    Q_OBJECT

public:
    /// The session is not owned and must have a scene while anything is loading.
    explicit ModelLoader(HostSession& session, QObject* parent = nullptr);

    /// Adds the files to what is waiting, and starts when nothing is under way.
    void load(const QStringList& paths);
    /// Stops the file under way and forgets those that wait.
    void cancel();
    bool isBusy() const;

signals:
    void started(const QString& path);
    /// How much of the file under way is read, from 0 to 1.
    void progress(double fraction);
    /// The element is in the scene and all listeners know of it.
    void loaded(MO_ElementModule* element);
    /// One line with the file's name in it.
    void failed(const QString& message);
    /// Nothing is waiting any more.
    void finished();

private:
    void startNext();
    void take(const ImportResult& result);
    MO_ElementModule* addElement(const ImportResult& result);

    HostSession& _session;
    ModelImportJob _job;
    QStringList _waiting;
    QString _path;
    bool _busy = false;
};
