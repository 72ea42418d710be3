// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/scene/SC_SessionContext.h"

#include <QString>
#include <memory>

class PLUG_EditionStackInterface;
class PLUG_KeyStateInterface;
class TUScene;

/// The session that an application opens and owns: the context that views work in, the scene that
/// is being edited, and the services. While it lives it is what PLUG_Services hands out, so there
/// is one at a time. Views of the session may outlive it, but must not be used any more.
class HOST_EXPORT HostSession
{
public:
    HostSession();
    /// Closes the scene first, so that listeners can let go of it.
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    /// The session of the process; null when none is open.
    static HostSession* current();

    SC_SessionContext& context();
    PLUG_EditionStackInterface& editionStack();
    PLUG_KeyStateInterface& keyState();
    /// Whether the key, a Qt::Key, is held down in the application.
    bool isKeyPressed(int key) const;

    /// Null when no scene is open.
    TUScene* currentScene() const;

    /// Makes a new scene the current one and tells so; the one before is destroyed when all
    /// listeners know. With it go the selection and the undo history. The scene is owned by the
    /// session and lives until the next call of this or of closeScene().
    TUScene& openScene(const QString& name);
    /// The same without a new scene; nothing happens when none is open.
    void closeScene();

private:
    void replaceScene(std::unique_ptr<TUScene> scene);

    struct Private;
    std::unique_ptr<Private> d;
};
