// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/preferences/PreferenceKey.h"

#include <QObject>
#include <QVariant>
#include <vector>

/// Changes to preferences that hold at once and can be taken back together. Only what was changed
/// through it is taken back: the views write preferences of their own meanwhile.
class PreferenceEdits : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What the views read.
    static QVariant value(const PreferenceKey& key);
    /// Invalid where nothing of the key's kind is stored.
    static QVariant stored(const PreferenceKey& key);
    static bool isDefault(const PreferenceKey& key);

    /// A value that is the default is not stored, so that the key follows the default.
    void set(const PreferenceKey& key, const QVariant& newValue);
    void reset(const PreferenceKey& key);
    /// From here on there is nothing to take back.
    void keep();
    /// Brings back what was there before; a key that was not set is not set again.
    void revert();

signals:
    /// After the views had the chance to take a changed preference over.
    void applied();

private:
    struct Before
    {
        PreferenceKey key;
        QVariant stored;
    };

    void remember(const PreferenceKey& key);

    std::vector<Before> _before;
};
