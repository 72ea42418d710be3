// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <map>
#include <memory>

class MO_ElementModule;
class SceneDocument;
class TD_CelVq3d;

/// Reads model files again and shows what they hold now, in every exposure of the scene that shows
/// a model of the file. Frames, settings, ids and selection stay, since they go by key. That is no
/// undo step, and does not make the scene modified. A file that cannot be read leaves what is shown
/// as it is.
class ModelReload : public QObject
{
    Q_OBJECT

public:
    enum class Failures
    {
        TellAll,
        /// A file that failed the last time, too, is passed over in silence.
        TellNew
    };

    /// The document is not owned and must outlive this object.
    explicit ModelReload(SceneDocument& document, QObject* parent = nullptr);

    /// The files that the element's models came from; empty for null.
    QStringList filesOf(const MO_ElementModule* element) const;
    /// The files that the models of the whole scene came from, each once.
    QStringList filesOfScene() const;

    /// Reads the files, which takes a while; finished() follows, at once when there are none.
    void reload(const QStringList& paths, Failures failures = Failures::TellAll);
    void reload(const MO_ElementModule* element);

signals:
    /// Views may want to remember where they are.
    void aboutToExchange();
    /// One line with the file's name in it.
    void failed(const QString& path, const QString& message);
    /// The files whose models are exchanged, as all listeners know; may be none.
    void finished(const QStringList& paths);

private:
    struct Exchange;

    void exchange(const Exchange& exchange);
    void exchangeOutdated();
    void forget();

    SceneDocument& _document;
    QSet<QString> _failing;
    /// What was read last, by path, and the models that it took the place of: steps of the undo
    /// history may bring these back.
    std::map<QString, CEL_SharedPtr<TD_CelVq3d>> _latest;
    std::map<std::weak_ptr<TD_CelVq3d>, QString, std::owner_less<>> _outdated;
};
