// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QObject>
#include <QString>
#include <memory>

/// The user's preferences: one store for the process, kept from run to run. A key that was never
/// set, or holds something of another kind, reads as the default that is passed in.
class HOST_EXPORT PR_Preference : public QObject
{
    Q_OBJECT

public:
    /// The store; made at first use. Never null.
    static PR_Preference* instance();
    ~PR_Preference() override;

    bool getBoolValue(const QString& key, bool defaultValue) const;
    int getIntValue(const QString& key, int defaultValue) const;
    /// A choice from a list, by its index; kept as an integer. Without a default the store's own
    /// for that key is meant, or 0 where it has none.
    int getEnum(const QString& key) const;
    int getEnum(const QString& key, int defaultValue) const;
    /// A colour, packed as alpha, red, green, blue from the top byte down.
    unsigned int getRgbaValue(const QString& key, unsigned int defaultValue) const;
    /// A font family; an empty one reads as the default.
    QString getFontValue(const QString& key, const QString& defaultValue) const;

    void setBoolValue(const QString& key, bool value);
    void setIntValue(const QString& key, int value);
    void setEnum(const QString& key, int value);
    void setRgbaValue(const QString& key, unsigned int value);
    void setFontValue(const QString& key, const QString& family);
    /// Forgets the key, which then reads as its default again.
    void reset(const QString& key);

signals:
    /// A value was set that differs from the one before.
    void preferenceChanged();

private:
    PR_Preference();
    struct Private;
    std::unique_ptr<Private> d;
};
