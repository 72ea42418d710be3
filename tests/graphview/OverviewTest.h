// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXNavigatorQt.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "tests/graphview/StageTest.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <vector>

/// Notes which pictures are painted on it.
class PictureEngine : public QPaintEngine
{
public:
    PictureEngine()
        : QPaintEngine(AllFeatures)
    {
    }
    std::vector<qint64> keys;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap& picture, const QRectF&) override
    {
        keys.push_back(picture.cacheKey());
    }
    Type type() const override { return User; }
};

class PictureDevice : public QPaintDevice
{
public:
    mutable PictureEngine engine;

    QPaintEngine* paintEngine() const override { return &engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 1000;
        }
    }
};

/// What tests of the overview's picture have in common: what it shows, what it has to show, and
/// whether that was drawn again.
class OverviewTest : public StageTest
{
protected:
    GV_GraphXViewQt& view() { return _stage->view(); }
    GV_GraphXNavigatorQt& navigator() { return *view().navigator(); }
    bool show(const QSize& size = QSize(420, 310))
    {
        view().resize(size);
        view().show();
        return QTest::qWaitForWindowExposed(&view());
    }
    QRectF visibleArea()
    {
        for (QGraphicsItem* item : navigator().scene()->items()) {
            if (const auto* rect = qgraphicsitem_cast<QGraphicsRectItem*>(item))
                return rect->rect();
        }
        return {};
    }
    /// Which picture of the graph is shown, by a number that no other picture has.
    qint64 pictureShown()
    {
        PictureDevice device;
        {
            QPainter painter(&device);
            painter.setTransform(navigator().transform());
            navigator().mainItem()->paint(&painter, nullptr, navigator().viewport());
        }
        return device.engine.keys.size() == 1 ? device.engine.keys.front() : 0;
    }
    QImage kept() { return navigator().viewport()->grab().toImage(); }
    /// What the navigator would show if it drew everything each time.
    QImage drawn()
    {
        QGraphicsScene scene;
        scene.setSceneRect(-1e9, -1e9, 2e9, 2e9);
        scene.addItem(new GV_GraphXMainItem(controller(), true));
        scene.addRect(visibleArea(),
                      QPen(QBrush(Qt::black), 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        QGraphicsView plain(&scene);
        plain.setFrameStyle(QFrame::NoFrame);
        plain.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        plain.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        plain.setAlignment(Qt::Alignment());
        plain.setTransformationAnchor(QGraphicsView::NoAnchor);
        plain.setBackgroundBrush(navigator().backgroundBrush());
        plain.setRenderHints(navigator().renderHints());
        plain.resize(navigator().size());
        plain.setTransform(navigator().transform());
        return plain.viewport()->grab().toImage();
    }
};
