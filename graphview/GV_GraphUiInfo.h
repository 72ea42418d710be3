// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_NameIndex.h"
#include "graphview/GV_ShownRows.h"
#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiNodeKey.h"
#include "host/geometry/Box2.h"
#include "host/geometry/Rect2d.h"
#include "host/geometry/Vector2d.h"
#include "host/models/CEL_SharedPtr.h"

#include <QColor>
#include <QFont>
#include <cstdint>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

class GV_GraphVisitor;
class GV_HeaderVisitor;
class GV_VisibleTreeVisitor;
class MO_ElementModule;
class TD_CelVq3d;

/// What the graph view shows: a header for each 3D model element, and below the header of the
/// visible one the tree of its parts, laid out on the grid of GV_LayoutGrid. It also keeps which
/// nodes are selected, by key so that a selection outlives a rebuild, and the colours and the font
/// that all graph views share.
///
/// Node pointers that it gives out are its own and hold until the next update, rebuild or clear.
class SUBNODEVIEWS_EXPORT GV_GraphUiInfo
{
public:
    /// The elements to show, in order, each with the model that it shows now.
    using ModelList = std::vector<std::pair<MO_ElementModule*, CEL_SharedPtr<TD_CelVq3d>>>;

    /// The selected nodes. A value is null where the node of the key is gone.
    using SelectedNodeMap =
        std::unordered_map<GV_UiNodeKey, const GV_UiNode*, GV_UiNodeKey::GV_UiNodeKeyHasher>;

    /// One element and its tree. Copies share the tree, which belongs to the GV_GraphUiInfo.
    struct GraphInfo
    {
        GV_UiHeaderNode* rootNode = nullptr;
        UT_SharedWeakPtr<MO_ElementModule> model;
        /// Keeps the scene graph alive that the tree was built from.
        CEL_SharedPtr<TD_CelVq3d> cel;
        std::int32_t width = 0;
        std::int32_t height = 0;
        std::int32_t maxRow = 0;
        std::int32_t maxColumn = 0;
        bool extendedDisplay = false;
    };

    GV_GraphUiInfo();
    /// A copy shares the trees: only one of the two may be updated or destroyed afterwards.
    GV_GraphUiInfo(const GV_GraphUiInfo& other);
    GV_GraphUiInfo& operator=(const GV_GraphUiInfo& other);
    ~GV_GraphUiInfo();

    /// @name The models and the visible one
    /// @{

    /// Shows these models in place of those before. What stays keeps its tree and its collapsed
    /// branches, unless the display mode differs; null elements are left out. The visible model
    /// may be null or not among them, and then no tree is shown. True when the caller has to lay
    /// out and repaint.
    bool updateGraphUiInfo(const ModelList& models, const MO_ElementModule* visibleModel,
                           bool extendedDisplay);
    /// The same; the set makes no difference.
    bool updateGraphUiInfo(const ModelList& models, const std::set<MO_ElementModule*>& elements,
                           const MO_ElementModule* visibleModel, bool extendedDisplay);
    /// Takes the names of the headers from their elements, where these still live.
    void updateHeaderNodesName(std::set<GV_UiHeaderNode*> headers);
    /// Rebuilds the visible tree in the given mode; false when there is none.
    bool displayModeChanged(bool extendedDisplay);
    /// Forgets every model. Selected keys stay.
    void clearUiNodeGraph();

    bool isEmpty() const;
    /// Null when there is no such model, or its element is gone.
    MO_ElementModule* modelNode(int ix) const;
    /// -1 when no tree is shown.
    int visibleGraphIx() const;
    MO_ElementModule* visibleGraphModelNode() const;
    /// The header of the visible tree; null when none is shown.
    GV_UiHeaderNode* rootUiNode() const;

    /// Appends every header in order and returns the visible index.
    int headerNodes(std::vector<const GV_UiNode*>& out) const;

    /// Every header alone, then the visible tree with its header.
    void accept(GV_GraphVisitor& visitor);
    /// Every header.
    void accept(GV_HeaderVisitor& visitor);
    /// The visible tree, its header first.
    void accept(GV_VisibleTreeVisitor& visitor);

    /// @}
    /// @name Layout
    /// @{

    /// Lays the visible tree out; needed after every change of a collapsed flag.
    void calculateGeometricData();
    /// Sets the counts of the node and of everything below it to -1.
    void propagateNegativeCounts(GV_UiNode* node) const;
    /// Everything drawn, in model units; empty when there are no models.
    Math::Box2di boundingRect();
    /// The visible tree's rows, its header first, without what is folded away.
    const GV_ShownRows& shownRows() const;
    /// Finds what lies under a point of the model plane. False when nothing does; true may still
    /// say that the node's box is missed.
    bool getNodeSelectionInfo(const Math::Vector2d& point, int& graphIx, GV_UiNode*& node,
                              GV_UiNode::eSelectionType& type) const;

    /// @}
    /// @name Selection
    /// @{

    /// A caller that may change them counts as having done so.
    SelectedNodeMap& selectedNodes();
    const SelectedNodeMap& selectedNodes() const;
    void clearSelection(bool keepHeaderNodes);
    /// Selects the node, or the first editable one below it; false when there is none.
    bool setFirstNodeSelected(GV_UiNode* node);
    /// Selects the first node of the visible tree with this name, whether it is editable or not.
    bool setFirstNodeWithNameSelected(const QString& name);
    bool setHeaderNodeSelected(MO_ElementModule* element);
    /// Whether the node's key is selected. A null node has the empty key.
    bool isSubNodeSelected(const GV_UiNode* node) const;
    /// Selects nothing and returns false: marquees are the controller's.
    bool rectSelection(std::set<GV_UiNode*>& nodes, const Math::Rect2d& rect);
    /// The inclusive corners of what is selected, in model units; all zero without a selection.
    Math::Rect2d selectionRect();

    /// @}
    /// @name Appearance, shared by all graph views of the process
    /// @{

    /// Takes the colours and the font from the preferences; true when one of them changed.
    bool loadPreferences();
    const QColor& getColor(GV_UiNode::eObjType type, const GV_UiNode* node, bool hidden) const;
    static const QFont& font();

    /// @}

    /// Count the changes of which models are shown, in which order and with whose tree, and of what
    /// is selected.
    std::uint64_t graphsRevision() const { return _graphsRevision; }
    std::uint64_t selectionRevision() const { return _selectionRevision; }

private:
    void buildUiNodeGraph(GraphInfo& info, bool extendedDisplay);
    void buildUiNode(GraphInfo& info);
    void buildUiNodeFiltered(GraphInfo& info);
    GV_UiNode* buildUiNode(GV_UiNode* parent, const osg::NodePtr& node);
    bool buildChildsUiNodeFiltered(GV_UiNode* parent, const osg::NodePtr& node);
    static QString calculateDisplayName(const QString& name);
    GraphInfo newGraphInfo(MO_ElementModule* element, const CEL_SharedPtr<TD_CelVq3d>& cel,
                           bool extendedDisplay) const;
    void rememberSelectedHeaders();
    void deleteTree(GV_UiHeaderNode* root);
    void clearTree(GV_UiHeaderNode* root);
    void forgetSelectedNodes(GV_UiNode* root, bool includingRoot);
    GraphInfo* visibleGraph();

    void traverse(GV_UiNode* node, GV_GraphVisitor& visitor);
    void calculateCounts(GraphInfo& info, GV_UiNode* node, int column, int& row);
    GV_UiNode* getVisibleNode(GV_UiNode* node, int row) const;

    bool setFirstNodeWithNameSelected(GV_UiNode* start, const QString& name);
    bool calculateSelectionCounts(int& minHeader, int& maxHeader, int& minRow, int& maxRow,
                                  int& maxColumn) const;
    Math::Rect2d calculateSelectionRect(int minHeader, int maxHeader, int minRow, int maxRow,
                                        int maxColumn);

    const QColor& getColor(GV_UiNode::eObjType type, bool editable, bool selected,
                           bool hidden) const;
    static bool reloadFont();

    /// What the selection's map starts out with and returns to; the standard map may round it up.
    static constexpr std::size_t _initialBuckets = 8;

    std::vector<GraphInfo> _graphs;
    std::int32_t _visibleGraphIx = -1;
    SelectedNodeMap _selectedNodes;
    std::uint64_t _graphsRevision = 0;
    std::uint64_t _selectionRevision = 0;

    mutable GV_ShownRows _shownRows;
    GV_NameIndex _nameIndex;

    static QColor _normalTextColor;
    static QColor _selectedTextColor;
    static QColor _normalBoxColor;
    static QColor _selectedBoxColor;
    static QColor _hiddenBoxColor;
    static QColor _hiddenSelectedBoxColor;
    static QColor _disabledBoxColor;
    static QColor _defaultColor;
    static QString _fontName;
    static int _fontPointSize;
    static QFont _font;
};
