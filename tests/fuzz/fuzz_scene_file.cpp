// SPDX-License-Identifier: MIT
#include "host/models/TD_CelVq3d.h"
#include "referencehost/session/HostSession.h"
#include "workbench/scenefile/ModelLibrary.h"
#include "workbench/scenefile/SceneBuilder.h"
#include "workbench/scenefile/SceneCapture.h"
#include "workbench/scenefile/SceneFileReader.h"
#include "workbench/scenefile/SceneText.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QGuiApplication>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

const QString folder = QStringLiteral("/scenes");

/// What a session needs of the process, and the only one that there may be; it outlives the runs.
struct Process
{
    Process() { osg::osgInit(0, nullptr); }

    // Nothing is shown, wherever the fuzzer runs.
    bool isOffScreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QGuiApplication application{count, arguments};
    HostSession session;
};

HostSession& session()
{
    static Process process;
    return process.session;
}

/// Ends the program when the scene is not the same once it is written and read.
void comesBack(const SceneDescription& scene)
{
    const QByteArray text = sceneText(scene, folder);
    const SceneFileReader::Result read = SceneFileReader::read(text, folder);
    if (read.error.isEmpty() && read.problems.empty() && read.scene == scene)
        return;
    std::fprintf(stderr, "%s\ncame back as\n%s\n%s\n", text.constData(),
                 sceneText(read.scene, folder).constData(),
                 qPrintable(read.error + read.problems.summary(folder)));
    std::abort();
}

} // namespace

/// Whatever the bytes are, they are read without harm; and what was read, and what the host made
/// of it, comes back the same when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    HostSession& host = session();
    ModelLibrary library;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    SceneFileReader::Result read = SceneFileReader::read(bytes, folder);
    if (!read.error.isEmpty())
        return 0;
    comesBack(read.scene);
    SceneBuilder(host, library, read.problems).build(read.scene, {});
    comesBack(capturedScene(host, library));
    host.closeScene();
    return 0;
}
