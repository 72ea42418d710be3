// SPDX-License-Identifier: MIT

#include "workbench/batch/BatchRun.h"

#include "host/actions/AC_ActionInfo.h"
#include "host/actions/AC_Manager.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SelectionUtil.h"
#include "referencehost/scene/SceneElements.h"
#include "referencehost/session/HostSession.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "workbench/scenefile/SameFile.h"
#include "workbench/window/FileActions.h"
#include "workbench/window/WorkbenchWindow.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QPixmap>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextStream>
#include <cstdio>

void printError(const QString& message)
{
    std::fprintf(stderr, "subnode-workbench: %s\n", qUtf8Printable(message));
}

BatchRun::BatchRun(const CommandLine& commandLine, HostSession& session, WorkbenchWindow& window)
    : _commandLine(commandLine)
    , _session(session)
    , _window(window)
{
}

ExitCode BatchRun::openFiles()
{
    if (_commandLine.files.isEmpty())
        return ExitDone;
    ExitCode code = ExitDone;
    QEventLoop loop;
    FileActions& files = _window.files();
    QObject::connect(&files, &FileActions::problem, &loop, [&code](const QString& message) {
        printError(message);
        code = ExitFileError;
    });
    QObject::connect(&files, &FileActions::allOpened, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    files.open(_commandLine.files);
    loop.exec();
    return code;
}

void BatchRun::goToFrame()
{
    if (!_commandLine.frame)
        return;
    _session.context().currentFrameInterface()->setCurrentFrame(_session.currentScene(),
                                                                *_commandLine.frame);
    _session.context().changeManager()->notify();
}

void BatchRun::setFilter()
{
    if (!_commandLine.filter.isEmpty())
        _window.treeView().filterField()->setText(_commandLine.filter);
}

MO_ElementModule* BatchRun::elementToSelectIn() const
{
    SL_Selection* selection = _session.context().selection();
    if (MO_Node* selected = SL_SelectionUtil::getFirstNode(selection))
        return dynamic_cast<MO_ElementModule*>(selected);
    const std::vector<MO_ElementModule*> elements = elementsOf(_session.currentScene());
    if (elements.empty())
        return nullptr;
    selection->add(elements.front());
    return elements.front();
}

ExitCode BatchRun::selectSubnodes()
{
    if (_commandLine.selectedNames.isEmpty())
        return ExitDone;
    SL_Selection* selection = _session.context().selection();
    const SL_Selection::BatchSelectionModeScope scope(selection);
    MO_ElementModule* element = elementToSelectIn();
    if (!element) {
        printError(QApplication::translate("BatchRun", "There is no model to select in."));
        return ExitFileError;
    }
    // What a scene was saved with is not what was asked for.
    element->selInterface()->clearSubSelection();
    ExitCode code = ExitDone;
    for (const QString& name : _commandLine.selectedNames) {
        int id = 0;
        if (element->getSelIdForNodeKey(AT_ModelNodeKey(name), id)) {
            element->selInterface()->subSelect(id, true);
        } else {
            printError(QApplication::translate("BatchRun", "%1 has no subnode named \"%2\".")
                           .arg(element->instanceName(), name));
            code = ExitUsage;
        }
    }
    return code;
}

ExitCode BatchRun::performActions()
{
    if (_commandLine.actions.isEmpty())
        return ExitDone;
    // Some actions depend on how large the views are.
    _window.show();
    QApplication::processEvents();
    ExitCode code = ExitDone;
    for (const QString& action : _commandLine.actions) {
        if (!perform(action))
            code = ExitUsage;
    }
    return code;
}

bool BatchRun::perform(const QString& action)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\w+)(?:\\((-?\\d+)?\\))?$"));
    const QRegularExpressionMatch match = pattern.match(action);
    const QByteArray slotName = match.captured(1).toLatin1();
    std::optional<int> argument;
    if (!match.captured(2).isEmpty())
        argument = match.captured(2).toInt();

    const AC_Manager* manager = _session.context().actionManager();
    AC_ActionInfo validation(slotName, AC_ActionInfo::eValidate, argument);
    AC_ActionInfo info(slotName, AC_ActionInfo::ePerform, argument);
    if (slotName.isEmpty() || !manager->routeToAny(validation)) {
        printError(QApplication::translate("BatchRun", "There is no action \"%1\".").arg(action));
        return false;
    }
    if (!validation.isEnabled()) {
        printError(QApplication::translate("BatchRun", "The action \"%1\" is not available now.")
                       .arg(action));
        return false;
    }
    return manager->routeToAny(info);
}

ExitCode BatchRun::dump()
{
    QTextStream out(stdout);
    {
        const TUScene* scene = _session.currentScene();
        const int frame = _session.context().currentFrameInterface()->currentFrame(scene);
        Dump dump(out, *_commandLine.dump, frame);
        for (const MO_ElementModule* element : elementsOf(scene)) {
            const CEL_SharedPtr<TD_CelVq3d> model = element->modelAt(frame);
            if (model)
                dump.writeModel(element->instanceName(), listed(*element, *model, frame));
        }
    }
    out.flush();
    if (std::ferror(stdout) != 0) {
        printError(QApplication::translate("BatchRun", "Standard output cannot be written."));
        return ExitFileError;
    }
    return ExitDone;
}

std::vector<ListedNode> BatchRun::listed(const MO_ElementModule& element, const TD_CelVq3d& model,
                                         int frame) const
{
    ListingOptions options;
    options.everyNode = _commandLine.extended;
    options.filter = _commandLine.filter;
    options.settings = element.seqMeta(frame);
    if (const SLB_NodeInterface* selected = element.selInterface()) {
        for (const int id : selected->subSelectedIds()) {
            AT_ModelNodeKey key;
            if (element.getNodeKeyForSelId(id, key))
                options.selected.insert(key.name());
        }
    }
    return listNodes(model.rootNodePtr(), options);
}

ExitCode BatchRun::takeScreenshot()
{
    _window.show();
    QApplication::processEvents();
    QSaveFile file(_commandLine.screenshot);
    // Written beside the file and put in its place at the end: a picture that cannot be finished
    // leaves the one before as it was.
    if (!file.open(QIODevice::WriteOnly) || !_window.grab().save(&file, "PNG") || !file.commit()) {
        printError(QApplication::translate("BatchRun", "%1 cannot be written: %2")
                       .arg(_commandLine.screenshot, file.errorString()));
        return ExitFileError;
    }
    return ExitDone;
}

ExitCode BatchRun::save(bool allWentWell)
{
    if (!allWentWell) {
        printError(QApplication::translate("BatchRun",
                                           "%1 was not saved, since not everything could be done.")
                       .arg(_commandLine.saveAs));
        return ExitFileError;
    }
    for (const QString& file : _commandLine.files) {
        if (isSameFile(file, _commandLine.saveAs) &&
            !isSameFile(file, _window.files().document().path())) {
            printError(
                QApplication::translate("BatchRun", "%1 is a model, which no scene may replace.")
                    .arg(_commandLine.saveAs));
            return ExitFileError;
        }
    }
    QString error;
    if (_window.files().saveTo(_commandLine.saveAs, error))
        return ExitDone;
    printError(error);
    return ExitFileError;
}
