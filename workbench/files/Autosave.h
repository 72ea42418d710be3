// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/files/SceneDocument.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QList>
#include <QLockFile>
#include <QTimer>
#include <memory>

/// Keeps a copy of a modified scene on disk, a moment after each change, so that it outlives a
/// process that does not. The copy goes when the scene is saved or closed in order. A lock beside
/// each copy tells whether its owner still lives: copies without one are there to be taken up.
class Autosave : public QObject
{
    Q_OBJECT

public:
    /// A copy whose owner died.
    struct Abandoned
    {
        QString file;
        SceneDocument::Unsaved scene;
        QDateTime written;
    };

    /// The document is not owned and must outlive this object. The folder is made when needed.
    explicit Autosave(SceneDocument& document, const QString& folder = defaultFolder(),
                      QObject* parent = nullptr);
    /// Removes the copy.
    ~Autosave() override;

    static QString defaultFolder();
    /// The newest first. Copies that cannot be read are passed over.
    QList<Abandoned> abandoned() const;

    /// How long after a change the copy is written, and how long it waits at most while changes go
    /// on; in milliseconds.
    void setDelays(int quiet, int longest);
    /// Opens the scene of the copy as the document's, modified, and removes the copy once this
    /// object has written its own. False, and nothing happens, when another process took it or the
    /// document is opening something.
    bool takeUp(const Abandoned& copy);
    /// Removes the copy, unless another process took it.
    void discard(const Abandoned& copy);

signals:
    /// The copy could not be written, as it could before; one line.
    void failed(const QString& message);

private:
    void schedule();
    bool write();
    void remove();

    SceneDocument& _document;
    QString _folder;
    QString _file;
    std::unique_ptr<QLockFile> _lock;
    /// Held while the copy of another is being opened.
    std::unique_ptr<QLockFile> _taken;
    QTimer _timer;
    QElapsedTimer _sinceFirstChange;
    int _quiet;
    int _longest;
    bool _failing = false;
};
