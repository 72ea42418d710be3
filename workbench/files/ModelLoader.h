// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "workbench/modelstream/ModelImportJob.h"
#include "workbench/scenefile/ModelLibrary.h"

#include <QObject>
#include <QStringList>
#include <deque>
#include <functional>

class HostSession;
class MO_ElementModule;

/// Reads model files, one after the other, and knows which model came from which file. A file is
/// either brought into the session's scene, as an element named after it that shows the model on
/// every frame, or only read for whoever asked. The first element is selected when nothing is. A
/// file that cannot be read leaves the scene as it was.
class ModelLoader : public QObject
{
    Q_OBJECT

public:
    /// What became of files that were only read, by their paths as they were given.
    struct Reading
    {
        std::map<QString, CEL_SharedPtr<TD_CelVq3d>> models;
        /// One line with the file's name in it.
        std::map<QString, QString> errors;
        /// Whether some are in neither since they were not read any more.
        bool cancelled = false;
    };
    using ReadingDone = std::function<void(const Reading&)>;

    /// The session is not owned and must have a scene while elements are loading.
    explicit ModelLoader(HostSession& session, QObject* parent = nullptr);

    /// Adds the files to what is waiting, and starts when nothing is under way.
    void load(const QStringList& paths);
    /// The same without making elements; nobody is told of failures but the one who asked. It is
    /// called once, also after cancel(), but not when the loader dies before, and for no paths at
    /// once.
    void read(const QStringList& paths, const ReadingDone& done);
    /// Stops the file under way and forgets those that wait.
    void cancel();
    bool isBusy() const;
    HostSession& session() const { return _session; }
    ModelLibrary& library() { return _library; }

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
    struct Request
    {
        QStringList waiting;
        Reading reading;
        /// Null when elements are made of the files.
        ReadingDone done;
    };

    void startNext();
    void take(const ImportResult& result);
    MO_ElementModule* addElement(const CEL_SharedPtr<TD_CelVq3d>& model);
    void finishRequest();

    HostSession& _session;
    ModelLibrary _library;
    ModelImportJob _job;
    /// The first is under way.
    std::deque<Request> _requests;
    QString _path;
    bool _busy = false;
    bool _cancelled = false;
};
