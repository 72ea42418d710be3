// SPDX-License-Identifier: MIT

#include "workbench/window/FileActions.h"

#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "workbench/files/ModelLoader.h"
#include "workbench/import/ModelImporter.h"
#include "workbench/scenefile/SameFile.h"
#include "workbench/scenefile/SceneFormat.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

namespace {

bool isScene(const QString& path)
{
    return QFileInfo(path).suffix().compare(SceneFormat::extension, Qt::CaseInsensitive) == 0;
}

QString scenePattern()
{
    return QStringLiteral("*.") + SceneFormat::extension;
}

QStringList modelPatterns()
{
    QStringList patterns;
    for (const ModelFormat& format : ModelImporter::supportedFormats())
        patterns += QStringLiteral("*.") + format.extension;
    return patterns;
}

/// How a file is shown in a menu, where an ampersand would mark a key.
QString menuText(int number, const QString& path)
{
    const QString name = QFileInfo(path).fileName().replace(u'&', QStringLiteral("&&"));
    return QStringLiteral("&%1 %2").arg(number).arg(name);
}

} // namespace

FileActions::FileActions(HostSession& session, ModelLoader& loader, QSettings* settings,
                         QWidget* window)
    : QObject(window)
    , _loader(loader)
    , _window(window)
    , _document(session, loader)
    , _recent(settings)
    , _autosave(settings ? std::make_unique<Autosave>(_document) : nullptr)
    , _reload(_document)
    , _watch(session, _reload)
{
    _watch.setEnabled(false);
    connect(&_document, &SceneDocument::modifiedChanged, this, &FileActions::showTitle);
    connect(&_document, &SceneDocument::pathChanged, this, &FileActions::showTitle);
    connect(&_document, &SceneDocument::openFinished, this, &FileActions::finishScene);
    connect(&_loader, &ModelLoader::failed, this, &FileActions::problem);
    connect(&_loader, &ModelLoader::loaded, this, [this](const MO_ElementModule* element) {
        for (const MO_ElementModule::Exposure& exposure : element->exposures())
            _recent.add(_loader.library().originOf(exposure.model).path);
        emit done(tr("Opened \"%1\".").arg(element->instanceName()));
    });
    connect(&_reload, &ModelReload::failed, this,
            [this](const QString&, const QString& message) { emit problem(message); });
    connect(&_reload, &ModelReload::aboutToExchange, this, &FileActions::rememberViews);
    connect(&_reload, &ModelReload::finished, this, &FileActions::finishReload);
    if (_autosave)
        connect(_autosave.get(), &Autosave::failed, this, &FileActions::problem);
}

FileActions::~FileActions() = default;

bool FileActions::isMissing(const CEL_SharedPtr<TD_CelVq3d>& model) const
{
    return _loader.library().isPlaceholder(model);
}

void FileActions::setTree(SGV_Graph3DView* tree)
{
    _tree = tree;
    showTitle();
}

void FileActions::setWatching(bool watching)
{
    _watch.setEnabled(watching);
}

void FileActions::fillMenu(QMenu& menu)
{
    const auto add = [&](const QString& text, const QKeySequence& key, auto slot) {
        QAction* action = menu.addAction(text, this, slot);
        action->setShortcut(key);
        return action;
    };
    add(tr("&New Scene"), QKeySequence::New, &FileActions::newScene);
    add(tr("&Open..."), QKeySequence::Open, &FileActions::chooseFiles);
    QMenu* recent = menu.addMenu(tr("Open &Recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecent(*recent); });
    add(tr("Re&load Models"), QKeySequence(Qt::Key_F5), &FileActions::reload);
    QAction* watch = menu.addAction(tr("Reload When Files &Change"));
    watch->setCheckable(true);
    connect(watch, &QAction::toggled, this, &FileActions::setWatching);
    connect(&menu, &QMenu::aboutToShow, watch,
            [this, watch] { watch->setChecked(_watch.isEnabled()); });
    menu.addSeparator();
    add(tr("&Save"), QKeySequence::Save, &FileActions::save);
    add(tr("Save &As..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), &FileActions::saveAs);
    menu.addSeparator();
    QAction* quit = menu.addAction(tr("&Quit"), _window, &QWidget::close);
    // Not every platform has a key of its own for it.
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
}

void FileActions::fillRecent(QMenu& menu)
{
    menu.clear();
    int number = 1;
    for (const QString& path : _recent.paths()) {
        QAction* action =
            menu.addAction(menuText(number++ % 10, path), this, [this, path] { open({path}); });
        action->setToolTip(path);
        action->setStatusTip(path);
        action->setEnabled(QFileInfo::exists(path));
    }
    if (menu.isEmpty())
        menu.addAction(tr("No files yet"))->setEnabled(false);
    menu.addSeparator();
    menu.addAction(tr("&Clear Missing"), &_recent, &RecentFiles::clearMissing)
        ->setEnabled(!_recent.paths().isEmpty());
    menu.addAction(tr("Clear &All"), &_recent, &RecentFiles::clear)
        ->setEnabled(!_recent.paths().isEmpty());
}

void FileActions::chooseFiles()
{
    const QString models = modelPatterns().join(u' ');
    const QStringList paths = QFileDialog::getOpenFileNames(
        _window, tr("Open Models and Scenes"), QFileInfo(_document.path()).path(),
        tr("Models and scenes (%1 %2);;Scenes (%1);;3D models (%2);;All files (*)")
            .arg(scenePattern(), models));
    if (!paths.isEmpty())
        open(paths);
}

void FileActions::open(const QStringList& paths)
{
    const bool isIdle = _waiting.isEmpty() && !_opening;
    _waiting += paths;
    if (isIdle)
        openNext();
}

void FileActions::openNext()
{
    _opening = !_waiting.isEmpty();
    if (!_opening) {
        emit allOpened();
        return;
    }
    const QString path = _waiting.takeFirst();
    if (!isScene(path)) {
        connect(
            &_loader, &ModelLoader::finished, this, [this] { openNext(); },
            Qt::SingleShotConnection);
        _loader.load({path});
    } else if (!mayClose() || !_document.open(path)) {
        openNext();
    }
}

void FileActions::cancel()
{
    _waiting.clear();
    _loader.cancel();
}

void FileActions::finishScene(bool ok, const QString& message)
{
    if (!message.isEmpty())
        emit problem(message);
    if (ok) {
        _recent.add(_document.path());
        emit done(tr("Opened \"%1\".").arg(_document.title()));
    }
    if (_opening)
        openNext();
}

void FileActions::newScene()
{
    if (!mayClose())
        return;
    // What is still being read was meant for the scene that goes.
    cancel();
    _document.newScene();
}

void FileActions::reload()
{
    _reload.reload(_reload.filesOfScene());
}

void FileActions::rememberViews()
{
    // Of several files that are read again, the first one finds the views as the user left them.
    if (_treeState || !_tree)
        return;
    for (GV_GraphXViewQt* graph : _window->findChildren<GV_GraphXViewQt*>())
        _graphStates.emplace_back(graph, *graph);
    _treeState.emplace(*_tree);
}

void FileActions::finishReload(const QStringList& paths)
{
    for (const auto& [graph, state] : std::exchange(_graphStates, {})) {
        if (graph)
            state.restore(*graph);
    }
    if (_treeState && _tree)
        _treeState->restore(*_tree);
    _treeState.reset();
    if (!paths.isEmpty())
        emit done(tr("Model files read again: %1.").arg(paths.size()));
}

bool FileActions::save()
{
    return _document.path().isEmpty() ? saveAs() : saveWithConsent(_document.path());
}

bool FileActions::saveAs()
{
    QString proposal = _document.path();
    if (proposal.isEmpty())
        proposal = _document.title() + u'.' + SceneFormat::extension;
    QFileDialog dialog(_window, tr("Save Scene"), proposal, tr("Scenes (%1)").arg(scenePattern()));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(SceneFormat::extension);
    dialog.selectFile(QFileInfo(proposal).fileName());
    return dialog.exec() == QDialog::Accepted && saveWithConsent(dialog.selectedFiles().first());
}

/// The dialog of files has asked already whether another file may be replaced.
bool FileActions::saveWithConsent(const QString& path)
{
    auto consent = SceneDocument::Consent::NotGiven;
    const bool isOwn = isSameFile(path, _document.path());
    if (isOwn && (_document.needsOtherName() || _document.isChangedOnDisk())) {
        QMessageBox box(QMessageBox::Warning, tr("Save Scene"),
                        _document.needsOtherName()
                            ? tr("\"%1\" could not be read wholly. Replace it by what was read?")
                            : tr("\"%1\" was changed by another program. Replace it?"),
                        QMessageBox::Cancel, _window);
        box.setText(box.text().arg(_document.title()));
        const QPushButton* other = box.addButton(tr("Save &As..."), QMessageBox::AcceptRole);
        const QPushButton* replace = box.addButton(tr("&Replace"), QMessageBox::DestructiveRole);
        box.exec();
        if (box.clickedButton() == other)
            return saveAs();
        if (box.clickedButton() != replace)
            return false;
        consent = SceneDocument::Consent::Given;
    }
    QString error;
    if (!_document.saveAs(path, &error, consent)) {
        emit problem(error);
        return false;
    }
    _recent.add(path);
    emit done(tr("Saved \"%1\".").arg(_document.title()));
    return true;
}

bool FileActions::saveTo(const QString& path, QString& error)
{
    return _document.saveAs(path, &error);
}

bool FileActions::mayClose()
{
    if (!_document.isModified() || !_asks)
        return true;
    QMessageBox box(QMessageBox::Question, tr("Unsaved Changes"),
                    tr("Save the changes of \"%1\"?").arg(_document.title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, _window);
    box.setInformativeText(tr("Otherwise they are lost."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void FileActions::offerAbandoned()
{
    if (!_autosave)
        return;
    for (const Autosave::Abandoned& copy : _autosave->abandoned()) {
        const QString name = copy.scene.path.isEmpty() ? tr("A scene without a name")
                                                       : QFileInfo(copy.scene.path).fileName();
        QMessageBox box(QMessageBox::Question, tr("Unsaved Scene"),
                        tr("%1 was not saved when the workbench last ended.").arg(name),
                        QMessageBox::NoButton, _window);
        box.setInformativeText(tr("There is a copy of %1.")
                                   .arg(QLocale().toString(copy.written, QLocale::ShortFormat)));
        const QPushButton* take = box.addButton(tr("&Open Copy"), QMessageBox::AcceptRole);
        const QPushButton* drop = box.addButton(tr("&Discard Copy"), QMessageBox::DestructiveRole);
        box.addButton(tr("&Later"), QMessageBox::RejectRole);
        box.exec();
        if (box.clickedButton() == drop)
            _autosave->discard(copy);
        if (box.clickedButton() != take)
            continue;
        // What is opened meanwhile waits. The other copies wait for the next time: there is one
        // scene at a time.
        _opening = true;
        if (_autosave->takeUp(copy))
            return;
        _opening = false;
    }
}

void FileActions::showTitle()
{
    emit titleChanged(_document.title(), _document.isModified());
}
