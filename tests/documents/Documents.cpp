// SPDX-License-Identifier: MIT
#include "tests/documents/Documents.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/// The folders of the tree itself, and not what was built in it.
QStringList ownFolders(const QString& root)
{
    QStringList folders = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders.removeAll(QStringLiteral("build"));
    return folders;
}

QStringList filesNamed(const QString& root, const QStringList& patterns)
{
    QStringList found = QDir(root).entryList(patterns, QDir::Files);
    for (const QString& folder : ownFolders(root)) {
        QDirIterator it(root + u'/' + folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            found += QDir(root).relativeFilePath(it.next());
    }
    found.sort();
    return found;
}

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString withoutBlocks(QString text)
{
    static const QRegularExpression block(QStringLiteral("^```.*?^```$"),
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    return text.remove(block);
}

/// What a heading is linked to by.
QString anchorOf(const QString& heading)
{
    static const QRegularExpression dropped(QStringLiteral("[^\\w\\- ]"));
    return heading.toLower().remove(dropped).replace(u' ', u'-');
}

int headingLevel(const QString& line)
{
    static const QRegularExpression heading(QStringLiteral("^(#+) "));
    return static_cast<int>(heading.match(line).capturedLength(1));
}

} // namespace

Documents::Documents(const QString& root)
    : _root(root)
{
}

QStringList Documents::files() const
{
    return filesNamed(_root, {QStringLiteral("*.md")});
}

QString Documents::text(const QString& file) const
{
    return contentOf(_root + u'/' + file);
}

QStringList Documents::section(const QString& file, const QString& heading) const
{
    QStringList lines;
    int level = 0;
    for (const QString& line : text(file).split(u'\n')) {
        const int found = headingLevel(line);
        if (level > 0 && found > 0 && found <= level)
            break;
        if (level > 0)
            lines += line;
        else if (found > 0 && line.mid(found + 1) == heading)
            level = found;
    }
    return lines;
}

QStringList Documents::brokenLinks() const
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)\\s]+)\\)"));
    QStringList broken;
    for (const QString& file : files()) {
        auto it = link.globalMatch(withoutBlocks(text(file)));
        while (it.hasNext()) {
            const QString target = it.next().captured(1);
            if (!target.contains(QLatin1String("://")) && isBroken(file, target))
                broken += file + QStringLiteral(": ") + target;
        }
    }
    return broken;
}

bool Documents::isBroken(const QString& file, const QString& target) const
{
    const QString path = target.section(u'#', 0, 0);
    const QString anchor = target.section(u'#', 1);
    const QString folder = QFileInfo(file).path();
    const QString there = path.isEmpty() ? file : QDir::cleanPath(folder + u'/' + path);
    return !QFileInfo::exists(_root + u'/' + there) ||
           (!anchor.isEmpty() && !anchors(there).contains(anchor));
}

QSet<QString> Documents::anchors(const QString& file) const
{
    QSet<QString> found;
    for (const QString& line : withoutBlocks(text(file)).split(u'\n')) {
        if (const int level = headingLevel(line); level > 0)
            found += anchorOf(line.mid(level + 1));
    }
    return found;
}

QStringList Documents::unusedPictures() const
{
    QString all;
    for (const QString& file : files())
        all += text(file);
    QStringList unused;
    for (const QString& picture :
         QDir(_root + QStringLiteral("/docs/images")).entryList(QDir::Files)) {
        if (!all.contains(QStringLiteral("images/") + picture))
            unused += picture;
    }
    return unused;
}

QStringList Documents::codeSpans(const QString& file) const
{
    static const QRegularExpression span(QStringLiteral("`([^`]+)`"));
    QStringList spans;
    auto it = span.globalMatch(withoutBlocks(text(file)));
    while (it.hasNext())
        spans += it.next().captured(1).simplified();
    return spans;
}

QStringList Documents::missingPaths() const
{
    static const QRegularExpression path(
        QStringLiteral("^[\\w.\\-]+(/[\\w.\\-]+)+/?$|^[\\w\\-]+/$"));
    static const QRegularExpression name(
        QStringLiteral("^[\\w\\-]+\\.(md|sh|txt|xml|json|h|cpp|cmake)$"));
    const QStringList folders = ownFolders(_root);
    QSet<QString> names;
    for (const QString& file : filesNamed(_root, {QStringLiteral("*")}))
        names += QFileInfo(file).fileName();
    QStringList missing;
    for (const QString& file : files()) {
        for (const QString& span : codeSpans(file)) {
            const bool isPath = path.match(span).hasMatch() &&
                                folders.contains(span.section(u'/', 0, 0)) &&
                                !QFileInfo::exists(_root + u'/' + span);
            const bool isName = name.match(span).hasMatch() && !names.contains(span);
            if (isPath || isName)
                missing += file + QStringLiteral(": ") + span;
        }
    }
    return missing;
}

QSet<QString> Documents::sourceWords() const
{
    static const QRegularExpression word(QStringLiteral("\\w{3,}"));
    const QStringList patterns = {QStringLiteral("*.h"),   QStringLiteral("*.cpp"),
                                  QStringLiteral("*.xml"), QStringLiteral("*.txt"),
                                  QStringLiteral("*.in"),  QStringLiteral("*.cmake"),
                                  QStringLiteral("*.gltf")};
    QSet<QString> words;
    for (const QString& file : filesNamed(_root, patterns)) {
        // These tests know names that are not there.
        if (file.startsWith(QLatin1String("tests/documents/")))
            continue;
        auto it = word.globalMatch(contentOf(_root + u'/' + file));
        while (it.hasNext())
            words += it.next().captured();
    }
    return words;
}

QStringList Documents::unknownNames() const
{
    // Two humps, an underscore, or a scope: a single capital may begin any word.
    static const QRegularExpression name(
        QStringLiteral("^[A-Za-z]\\w*(?:[a-z][A-Z]|_)\\w*(?:::\\w+)*(?:\\(\\))?$"));
    static const QRegularExpression word(QStringLiteral("\\w{3,}"));
    QSet<QString> known = sourceWords();
    // Keys are called so by Qt.
    known.unite({QStringLiteral("PgUp"), QStringLiteral("PgDown")});
    QStringList unknown;
    for (const QString& file : files()) {
        for (const QString& span : codeSpans(file)) {
            if (!name.match(span).hasMatch())
                continue;
            auto it = word.globalMatch(span);
            while (it.hasNext()) {
                if (!known.contains(it.next().captured()))
                    unknown += file + QStringLiteral(": ") + span;
            }
        }
    }
    return unknown;
}

QSet<QString> Documents::workbenchOptions(const QString& file) const
{
    static const QRegularExpression option(QStringLiteral("(?<![\\w\\-])--[a-z][a-z\\-]*"));
    static const QRegularExpression continued(QStringLiteral("\\\\\\n\\s*"));
    static const QRegularExpression program(QStringLiteral("subnode-workbench|workbench\\.sh"));
    QStringList places;
    for (const QString& line : text(file).replace(continued, QStringLiteral(" ")).split(u'\n')) {
        // Text around code says nothing of whose the options in it are.
        if (!line.contains(u'`') && program.match(line).hasMatch())
            places += line.mid(program.match(line).capturedStart());
    }
    for (const QString& span : codeSpans(file)) {
        if (span.startsWith(QLatin1String("--")) || program.match(span).hasMatch())
            places += span;
    }
    QSet<QString> found;
    for (const QString& place : places) {
        auto it = option.globalMatch(place);
        while (it.hasNext())
            found += it.next().captured();
    }
    return found;
}
