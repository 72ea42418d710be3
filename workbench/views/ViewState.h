// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

class GV_GraphXViewQt;
class SGV_Graph3DView;

/// What a user has folded in a graph view, by the names of the subnodes, so that it can be brought
/// back when a model was read anew. A value.
class GraphViewState
{
public:
    GraphViewState() = default;
    explicit GraphViewState(const GV_GraphXViewQt& view);
    /// Takes over how the subnodes are folded that the view shows now; others stay as they were.
    void remember(const GV_GraphXViewQt& view);
    /// Builds the tree anew and folds in it what was folded; what is new stays unfolded.
    void restore(GV_GraphXViewQt& view) const;

private:
    QSet<QString> _collapsed;
};

/// The same for a subnode tree: which rows were folded, which one was current, and how far the list
/// was scrolled.
class TreeViewState
{
public:
    explicit TreeViewState(const SGV_Graph3DView& view);
    void restore(SGV_Graph3DView& view) const;

private:
    QSet<QString> _collapsed;
    QString _current;
    int _scrolled = 0;
};
