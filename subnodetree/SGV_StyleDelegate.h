// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QColor>
#include <QWidget>

/// Receives the colours of the subnode tree from the application's style sheet, by its rules for
/// the type SGV_StyleDelegate, and is never shown. Without such rules the colours are invalid.
class SUBNODEVIEWS_EXPORT SGV_StyleDelegate : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor subnodeDefaultBackgroundColor READ subnodeDefaultBackgroundColor WRITE
                   setSubnodeDefaultBackgroundColor)
    Q_PROPERTY(QColor subnodeDefaultTextColor READ subnodeDefaultTextColor WRITE
                   setSubnodeDefaultTextColor)
    Q_PROPERTY(QColor subnodeBaseTextColor READ subnodeBaseTextColor WRITE setSubnodeBaseTextColor)
    Q_PROPERTY(QColor subnodeDisabledTextColor READ subnodeDisabledTextColor WRITE
                   setSubnodeDisabledTextColor)
    Q_PROPERTY(QColor subnodeHiddenShapeTextColor READ subnodeHiddenShapeTextColor WRITE
                   setSubnodeHiddenShapeTextColor)

public:
    SGV_StyleDelegate();
    ~SGV_StyleDelegate() override;

    /// The one of the process, made at the first call, with the style sheet as it is now applied.
    /// Needs the application, and dies with it.
    static SGV_StyleDelegate& instance();

    /// What the icons of rows are blended with.
    QColor subnodeDefaultBackgroundColor() const { return _defaultBackground; }
    void setSubnodeDefaultBackgroundColor(const QColor& color) { _defaultBackground = color; }
    /// The text of a subnode of which nothing is switched off.
    QColor subnodeDefaultTextColor() const { return _defaultText; }
    void setSubnodeDefaultTextColor(const QColor& color) { _defaultText = color; }
    /// The text of any other subnode, to which the next two are added.
    QColor subnodeBaseTextColor() const { return _baseText; }
    void setSubnodeBaseTextColor(const QColor& color) { _baseText = color; }
    QColor subnodeDisabledTextColor() const { return _disabledText; }
    void setSubnodeDisabledTextColor(const QColor& color) { _disabledText = color; }
    QColor subnodeHiddenShapeTextColor() const { return _hiddenShapeText; }
    void setSubnodeHiddenShapeTextColor(const QColor& color) { _hiddenShapeText = color; }

private:
    QColor _defaultBackground;
    QColor _defaultText;
    QColor _baseText;
    QColor _disabledText;
    QColor _hiddenShapeText;
};
