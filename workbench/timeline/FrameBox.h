// SPDX-License-Identifier: MIT
#pragma once

#include <QSpinBox>

class HostSession;

/// Shows the current frame of the scene, and goes to another one.
class FrameBox : public QSpinBox
{
    Q_OBJECT

public:
    /// The session is not owned and must outlive the box.
    FrameBox(HostSession& session, QWidget* parent);

private:
    void showFrame();
    void goToFrame(int frame);

    HostSession& _session;
};
