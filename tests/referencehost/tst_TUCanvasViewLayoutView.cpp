// SPDX-License-Identifier: MIT
#include "host/actions/AC_Manager.h"
#include "host/layout/TUCanvasViewLayoutView.h"

#include <QRegularExpression>
#include <QTest>

namespace {

class Canvas : public TUCanvasViewLayoutView
{
public:
    Canvas(AC_Manager* manager, QWidget* parent)
        : TUCanvasViewLayoutView(manager, QStringLiteral("Canvas"), parent,
                                 QStringLiteral("canvas"), Qt::WindowFlags())
    {
    }

    TULayoutView* clone(QWidget* parent) const override
    {
        return new Canvas(actionManager(), parent);
    }
    bool hasMenu() override { return false; }
};

} // namespace

class tst_TUCanvasViewLayoutView : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void is_its_own_widget_under_its_names()
    {
        QWidget parent;
        Canvas canvas(nullptr, &parent);
        QCOMPARE(canvas.widget(), static_cast<QWidget*>(&canvas));
        QCOMPARE(canvas.viewName(), QStringLiteral("Canvas"));
        QCOMPARE(canvas.responderIdentity(), QStringLiteral("canvas"));
        QCOMPARE(canvas.parentWidget(), &parent);
    }

    void registers_with_the_manager_beside_its_clones()
    {
        AC_Manager manager;
        QWidget parent;
        auto* canvas = new Canvas(&manager, &parent);
        const TULayoutView* clone = canvas->clone(&parent);
        QCOMPARE(clone->viewName(), canvas->viewName());
        QCOMPARE(manager.responders(QStringLiteral("canvas")).size(), 2u);
        delete canvas;
        QCOMPARE(manager.responders(QStringLiteral("canvas")).size(), 1u);
    }

    void dies_with_its_widget()
    {
        AC_Manager manager;
        {
            QWidget parent;
            const TULayoutView* view = new Canvas(&manager, &parent);
            QVERIFY(view);
        }
        QVERIFY(manager.responders(QStringLiteral("canvas")).empty());
    }

    void may_outlive_the_manager()
    {
        auto manager = std::make_unique<AC_Manager>();
        const Canvas canvas(manager.get(), nullptr);
        manager.reset();
        QVERIFY(!canvas.actionManager());
    }
};

QTEST_MAIN(tst_TUCanvasViewLayoutView)
#include "tst_TUCanvasViewLayoutView.moc"
