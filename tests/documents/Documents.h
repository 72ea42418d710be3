// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/// The documents of a source tree, as Markdown files, and what can be found wrong with them without
/// knowing what they say. Everything is read anew at each call.
class Documents
{
public:
    /// The root of the source tree.
    explicit Documents(const QString& root);

    /// Relative to the root, in order.
    QStringList files() const;
    /// Empty for a file that cannot be read.
    QString text(const QString& file) const;
    /// The lines of the section below the heading, of whatever level, up to the next heading of
    /// that level or a higher one.
    QStringList section(const QString& file, const QString& heading) const;

    /// @name One line for each thing that is wrong
    /// @{
    QStringList brokenLinks() const;
    /// Pictures of docs/images that no document shows.
    QStringList unusedPictures() const;
    /// Paths in code spans that begin like a path of the tree and lead nowhere.
    QStringList missingPaths() const;
    /// Names in code spans that look like classes, functions or preferences and that no source file
    /// has.
    QStringList unknownNames() const;
    /// @}

    /// The long options, with their dashes, that the document gives to the workbench.
    QSet<QString> workbenchOptions(const QString& file) const;

private:
    QStringList codeSpans(const QString& file) const;
    bool isBroken(const QString& file, const QString& target) const;
    QSet<QString> anchors(const QString& file) const;
    QSet<QString> sourceWords() const;

    QString _root;
};
