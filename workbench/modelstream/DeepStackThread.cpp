// SPDX-License-Identifier: MIT
#include "workbench/modelstream/DeepStackThread.h"

#include <utility>

namespace {
constexpr uint deepStack = 512U * 1024 * 1024;
} // namespace

DeepStackThread::DeepStackThread(std::function<void()> work)
    : _work(std::move(work))
{
    setStackSize(deepStack);
}

bool DeepStackThread::runAndWait(const std::function<void()>& work)
{
    if (dynamic_cast<DeepStackThread*>(QThread::currentThread())) {
        work();
        return true;
    }
    bool done = false;
    DeepStackThread thread([&] {
        work();
        done = true;
    });
    thread.start();
    thread.wait();
    return done;
}

void DeepStackThread::run()
{
    _work();
}
