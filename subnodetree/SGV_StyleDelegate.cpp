// SPDX-License-Identifier: MIT

#include "subnodetree/SGV_StyleDelegate.h"

#include <QCoreApplication>
#include <memory>

namespace {

std::unique_ptr<SGV_StyleDelegate>& storage()
{
    static std::unique_ptr<SGV_StyleDelegate> delegate;
    return delegate;
}

} // namespace

SGV_StyleDelegate::SGV_StyleDelegate() = default;

SGV_StyleDelegate::~SGV_StyleDelegate() = default;

SGV_StyleDelegate& SGV_StyleDelegate::instance()
{
    std::unique_ptr<SGV_StyleDelegate>& delegate = storage();
    if (!delegate) {
        delegate = std::make_unique<SGV_StyleDelegate>();
        // A widget must not outlive the application.
        qAddPostRoutine([] { storage().reset(); });
    }
    // A style sheet reaches a widget when it is first shown, which never happens here.
    delegate->ensurePolished();
    return *delegate;
}
