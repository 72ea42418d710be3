// SPDX-License-Identifier: MIT
// Opens the scene file of the second argument, if there is one, changes the scene, keeps it in the
// folder of the first argument, and then waits to be killed.
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/files/Autosave.h"
#include "workbench/files/ModelLoader.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    osg::osgInit(0, nullptr);
    const QApplication application(argc, argv);
    HostSession session;
    session.openScene(QStringLiteral("scene"));
    ModelLoader loader(session);
    SceneDocument document(session, loader);
    Autosave autosave(document, application.arguments().at(1));
    autosave.setDelays(50, 200);
    if (argc > 2)
        document.open(application.arguments().at(2));
    session.currentScene()->rootGroup()->insertNode(
        std::make_unique<MO_PegModule>(QStringLiteral("kept")));
    session.context().changeManager()->notify();
    std::puts("changed");
    std::fflush(stdout);
    return QApplication::exec();
}
