// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What is the same for every attribute of a kind. A value.
class AT_AttrMeta
{
public:
    AT_AttrMeta(const QString& keyword, bool nodeDirtyOnChange)
        : _keyword(keyword)
        , _nodeDirtyOnChange(nodeDirtyOnChange)
    {
    }

    /// The name that scene files and code know the attribute by.
    const QString& keyword() const { return _keyword; }
    /// Whether what the node makes is out of date when the attribute changes.
    bool isNodeDirtyOnChange() const { return _nodeDirtyOnChange; }

private:
    QString _keyword;
    bool _nodeDirtyOnChange;
};
