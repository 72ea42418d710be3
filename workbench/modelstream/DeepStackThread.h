// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>
#include <functional>

/// A thread with a stack for hierarchies of any sensible depth: the reading library visits them,
/// and destroys them, by recursion. The stack costs memory only as far as it is used.
class DeepStackThread : public QThread
{
public:
    explicit DeepStackThread(std::function<void()> work);

    /// Does the work in such a thread and waits for it; at once if the calling thread is one.
    /// False if no thread could be started, and then the work was not done.
    static bool runAndWait(const std::function<void()>& work);

protected:
    void run() override;

private:
    std::function<void()> _work;
};
