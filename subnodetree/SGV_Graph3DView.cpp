// SPDX-License-Identifier: MIT

#include "subnodetree/SGV_Graph3DView.h"

#include "host/actions/AC_Manager.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_Model3DUtils.h"
#include "host/scene/MO_BaseContext.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SelectionUtil.h"
#include "host/widgets/UT_Screen.h"
#include "host/widgets/WID_HBoxLayout.h"
#include "host/widgets/WID_IconManager.h"
#include "host/widgets/WID_VBoxLayout.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTreeView>

namespace {

constexpr double searchIconExtent = 24.0;
constexpr double rowIconExtent = 16.0;
constexpr int lineMargin = 5;

/// How many rows the column's width is fitted to; measuring them takes most of a layout.
constexpr int measuredRows = 250;

int scaled(double extent)
{
    return static_cast<int>(UT_Screen::getMainScreen().scaleFactor() * extent);
}

} // namespace

SGV_Graph3DView::SGV_Graph3DView(AC_Manager* manager, QWidget* parent, SC_SessionContext* session)
    : TUWidgetLayoutView(manager, QStringLiteral("graphView"), parent,
                         QStringLiteral("SGV_GraphView"), Qt::WindowFlags())
    , _sessionContext(session)
{
}

SGV_Graph3DView::~SGV_Graph3DView()
{
    // The models are about to go, and the tree tells of everything that goes with them.
    _rebuilding = true;
}

void SGV_Graph3DView::init()
{
    initTree();
    QBoxLayout* filterLine = newFilterLine();
    _pathLabel = new QLabel;
    _pathLabel->setContentsMargins(lineMargin, 0, lineMargin, lineMargin);
    // A long path must not make the panel as wide as it is.
    _pathLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* column = new WID_VBoxLayout(this);
    column->addWidget(_treeView);
    column->addLayout(filterLine);
    column->addWidget(_pathLabel);

    updateModel();
    updateNetworkConnectionsData();
    updateVisibilityData();
    updateParentElementModuleName();

    connectNotifications();
    connect(_treeView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SGV_Graph3DView::on3DModelSubSectionChanged);
    setMenu(actionManager(), "3D_GRAPH_VIEW_MENU", eViewMenu);
    _treeView->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(_treeView, &QWidget::customContextMenuRequested, this,
            &SGV_Graph3DView::onCustomContextMenu);
    setMenu(actionManager(), "3D_GRAPH_POPUP_MENU", ePopupMenu);
    connect(_filterField, &QLineEdit::textChanged, _proxyModel.get(),
            &SubNodeFilterProxyModel::setFilterFixedString);
    connect(_filterField, &QLineEdit::textChanged, _treeView, &QTreeView::expandAll);
    connect(_filterField, &QLineEdit::textChanged, this, &SGV_Graph3DView::onFilterChanged);
    _treeView->show();
    refreshTree();
    _treeView->setIconSize(QSize(scaled(rowIconExtent), scaled(rowIconExtent)));
}

void SGV_Graph3DView::initTree()
{
    _treeView = new QTreeView;
    _model = std::make_unique<SGV_GraphModel>();
    _proxyModel = std::make_unique<SubNodeFilterProxyModel>();
    _proxyModel->setSourceModel(_model.get());
    _treeView->setModel(_proxyModel.get());
    _treeView->setHeaderHidden(true);
    _treeView->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    _treeView->header()->setStretchLastSection(false);
    _treeView->header()->setResizeContentsPrecision(measuredRows);
    _treeView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Rows are all alike, and with thousands of them that must not be found out one by one.
    _treeView->setUniformRowHeights(true);
    _treeView->setAccessibleName(tr("Subnodes"));
    setFocusProxy(_treeView);
}

QBoxLayout* SGV_Graph3DView::newFilterLine()
{
    _filterField = new QLineEdit;
    _filterField->setClearButtonEnabled(true);
    _filterField->setPlaceholderText(tr("Filter subnodes"));
    const QIcon icon = WID_IconManager::instance().addBlendedIcon(
        QStringLiteral("library/find.png"), palette().color(backgroundRole()));
    auto* iconLabel = new QLabel;
    iconLabel->setPixmap(icon.pixmap(scaled(searchIconExtent)));
    iconLabel->setBuddy(_filterField);
    auto* line = new WID_HBoxLayout;
    line->setMargin(lineMargin);
    line->setContentsMargins(lineMargin, 0, lineMargin, 0);
    line->addWidget(iconLabel);
    line->addWidget(_filterField);
    return line;
}

void SGV_Graph3DView::connectNotifications()
{
    const TUSceneChangeManager* changes = _sessionContext->changeManager();
    using Changes = TUSceneChangeManager;
    using View = SGV_Graph3DView;
    connect(changes, &Changes::selectionChanged, this, &View::onSelectionChanged);
    connect(changes, &Changes::subSelectionChanged, this, &View::onSubSelectionChanged);
    connect(changes, &Changes::currentFrameChanged, this, &View::onCurrentFrameChanged);
    connect(changes, &Changes::currentSceneChanged, this, &View::onCurrentSceneChanged);
    connect(changes, &Changes::nodesChanged, this, &View::nodesChanged);
    connect(changes, &Changes::networkChanged, this, &View::networkChanged);
    connect(changes, &Changes::childrenOrderingChanged, this, &View::networkChanged);
    connect(this, &View::subSelectionChanged, changes, &Changes::subSelectionChanged);
}

TULayoutView* SGV_Graph3DView::clone(QWidget* parent) const
{
    auto* view = new SGV_Graph3DView(actionManager(), parent, _sessionContext);
    view->init();
    return view;
}

bool SGV_Graph3DView::hasMenu()
{
    return true;
}

QDomElement SGV_Graph3DView::toolbar()
{
    return actionManager() ? actionManager()->toolbar(QStringLiteral("graph3dtoolbar"))
                           : QDomElement();
}

void SGV_Graph3DView::reset()
{
    const QScopedValueRollback guard(_rebuilding, true);
    _model->clear();
    _currentNode = nullptr;
}

void SGV_Graph3DView::refreshTree()
{
    _treeView->viewport()->update();
}

MO_Node* SGV_Graph3DView::firstNode() const
{
    return SL_SelectionUtil::getFirstNode(_sessionContext->selection());
}

SLB_NodeWith3DSubNode* SGV_Graph3DView::firstNodeWithSubnodes() const
{
    const MO_Node* node = firstNode();
    return node ? dynamic_cast<SLB_NodeWith3DSubNode*>(node->selInterface()) : nullptr;
}

MO_BaseContext SGV_Graph3DView::frameContext(const MO_Node& node) const
{
    return _sessionContext->currentFrameInterface()->frameContext(node.sceneCommon());
}

CEL_SharedPtr<TD_CelVq3d> SGV_Graph3DView::shownModel(MO_Node& node) const
{
    const MO_BaseContext context = frameContext(node);
    CEL_SharedPtr<TD_CelVq3d> cel = TD_Model3DUtils::get3dModel(context, &node);
    const AT_ModelData* settings = TD_Model3DUtils::getModelMetadata(context, &node);
    if (!cel || !settings || !settings->hasSubTransformations())
        return cel;
    CC_Transformation transformation;
    transformation.addDeformation(TD_Model3DUtils::createSubTransformation(*settings));
    return TD_Model3DUtils::getTransformed3dModel(cel, transformation,
                                                  node.sceneMetrics().modelUnits);
}

void SGV_Graph3DView::updateModel()
{
    MO_Node* node = firstNodeWithSubnodes() ? firstNode() : nullptr;
    bool changed = node != _currentNode.get();
    _currentNode = node;
    if (const CEL_SharedPtr<TD_CelVq3d> cel = node ? shownModel(*node) : nullptr) {
        if (!_model->showsRootNode(cel->rootNodePtr())) {
            const QScopedValueRollback guard(_rebuilding, true);
            changed = true;
            _model->setRootNode(cel->rootNodePtr());
            // New rows know nothing of what the old ones were marked with.
            updateNetworkConnectionsData();
            updateVisibilityData();
        }
    } else {
        if (_model->isEmpty())
            return;
        const QScopedValueRollback guard(_rebuilding, true);
        _model->clear();
    }
    if (changed)
        _treeView->expandAll();
    updateSelection();
}

void SGV_Graph3DView::onSelectionChanged()
{
    updateModel();
    updateNetworkConnectionsData();
    updateVisibilityData();
    updateParentElementModuleName();
    refreshTree();
}

void SGV_Graph3DView::onSubSelectionChanged()
{
    updateSelection();
}

void SGV_Graph3DView::onCurrentFrameChanged()
{
    updateModel();
    refreshTree();
}

void SGV_Graph3DView::onCurrentSceneChanged(TUScene*)
{
    onSelectionChanged();
}

void SGV_Graph3DView::nodesChanged(const TUNodeSet&)
{
    onSelectionChanged();
}

void SGV_Graph3DView::networkChanged()
{
    updateModel();
    updateNetworkConnectionsData();
    updateParentElementModuleName();
    refreshTree();
}

void SGV_Graph3DView::onFilterChanged()
{
    updateSelection();
}
