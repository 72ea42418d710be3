// SPDX-License-Identifier: MIT

#include "benchmarks/graphview/ShownView.h"

#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_LayoutGrid.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"
#include "host/selection/SL_Selection.h"

#include <QApplication>
#include <limits>

namespace {

constexpr int lastFrame = std::numeric_limits<int>::max();

} // namespace

ShownView::ShownView(const CEL_SharedPtr<TD_CelVq3d>& cel)
{
    PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
    TUScene& scene = _session.openScene(QStringLiteral("bench"));
    auto element = std::make_unique<MO_ElementModule>(QStringLiteral("model"));
    _element = element.get();
    element->exposeModel(1, lastFrame, cel);
    _session.context().selection()->add(scene.rootGroup()->insertNode(std::move(element)));
    _view = std::make_unique<GV_GraphXViewQt>(_session.context().actionManager(), nullptr,
                                              &_session.context());
    _view->init(new GV_GraphXViewCtrl(_view.get(), &_session.context()));
    _view->resize(1000, 800);
    _view->show();
    settle();
}

ShownView::~ShownView() = default;

void ShownView::scrollToRow(int row)
{
    _view->onActionResetView();
    _view->handleNavigatorPan({0.0, -static_cast<double>(row * GV_LayoutGrid::rowPitch)});
}

void ShownView::settle()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}
