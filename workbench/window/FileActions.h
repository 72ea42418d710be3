// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "workbench/files/Autosave.h"
#include "workbench/files/ModelReload.h"
#include "workbench/files/ModelWatch.h"
#include "workbench/files/RecentFiles.h"
#include "workbench/files/SceneDocument.h"
#include "workbench/views/ViewState.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class GV_GraphXViewQt;
class HostSession;
class ModelLoader;
class QMenu;
class QSettings;
class QWidget;
class SGV_Graph3DView;
class TD_CelVq3d;

/// The file menu, and all that it takes to open, reload and save without losing anything: questions
/// before something unsaved would go, copies that survive a crash, and views that look as before
/// when a model was read anew.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// Session, loader and settings are not owned and must outlive this object. Without settings
    /// no files are remembered and no copies are kept. The window is the parent, and that of the
    /// questions.
    FileActions(HostSession& session, ModelLoader& loader, QSettings* settings, QWidget* window);
    ~FileActions() override;

    SceneDocument& document() { return _document; }
    /// Whether the model stands in for one whose file could not be read.
    bool isMissing(const CEL_SharedPtr<TD_CelVq3d>& model) const;

    void fillMenu(QMenu& menu);
    /// The tree that keeps what is folded in it when a model is reloaded, as every graph view of
    /// the window does. Not owned.
    void setTree(SGV_Graph3DView* tree);
    /// Whether models are read again when their files change.
    void setWatching(bool watching);
    /// Whether there is a user to ask. Without one, what is not saved may go.
    void setAsks(bool asks) { _asks = asks; }

    /// Opens models and scenes, one after the other; allOpened() follows.
    void open(const QStringList& paths);
    /// Stops what is being opened, and forgets what waits; allOpened() follows.
    void cancel();
    /// Asks whether to save what is not, and saves it. False when the user wants to stay.
    bool mayClose();
    /// Saves without a question, and so not over a scene that could not be read wholly. On failure
    /// the error becomes one line with the file's name.
    bool saveTo(const QString& path, QString& error);
    /// Asks what to do with the copies of scenes that a run before this one could not save.
    void offerAbandoned();

public slots:
    void chooseFiles();
    void reload();
    bool save();
    bool saveAs();
    void newScene();

signals:
    /// One line about what went wrong.
    void problem(const QString& message);
    /// One line about what was done.
    void done(const QString& message);
    void titleChanged(const QString& title, bool modified);
    void allOpened();

private:
    void openNext();
    void finishScene(bool ok, const QString& message);
    void rememberViews();
    void finishReload(const QStringList& paths);
    void fillRecent(QMenu& menu);
    bool saveWithConsent(const QString& path);
    void showTitle();

    ModelLoader& _loader;
    QWidget* _window;
    SceneDocument _document;
    RecentFiles _recent;
    /// Null where no copies are kept.
    std::unique_ptr<Autosave> _autosave;
    ModelReload _reload;
    ModelWatch _watch;
    QStringList _waiting;
    bool _opening = false;
    bool _asks = true;
    QPointer<SGV_Graph3DView> _tree;
    /// How the views were before models were exchanged.
    std::vector<std::pair<QPointer<GV_GraphXViewQt>, GraphViewState>> _graphStates;
    std::optional<TreeViewState> _treeState;
};
