// SPDX-License-Identifier: MIT
#include "host/scene/MO_DisplayModule.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/MO_PegModule.h"

#include <QRegularExpression>
#include <QTest>

namespace {

class FallbackVisitor : public MO_AbstractModuleVisitorWithModuleFallback
{
public:
    using MO_AbstractModuleVisitorWithModuleFallback::visit;
    void visit(MO_Module* module) override { modules.push_back(module); }

    std::vector<MO_Module*> modules;
};

class ElementVisitor : public MO_ModuleVisitor
{
public:
    using MO_ModuleVisitor::visit;
    void visit(MO_ElementModule* module) override { elements.push_back(module); }

    std::vector<MO_ElementModule*> elements;
};

} // namespace

class tst_MO_ModuleVisitor : public QObject
{
    Q_OBJECT

private:
    MO_GroupModule _group{QStringLiteral("Group")};
    MO_ElementModule _element{QStringLiteral("Element")};
    MO_PegModule _peg{QStringLiteral("Peg")};
    MO_DisplayModule _display{QStringLiteral("Display")};

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void fallback_receives_every_kind_of_module()
    {
        FallbackVisitor visitor;
        const std::vector<MO_Module*> all{&_group, &_element, &_peg, &_display};
        for (MO_Module* module : all)
            module->accept(visitor);
        QCOMPARE(visitor.modules, all);
    }

    void visitor_ignores_the_kinds_that_it_does_not_override()
    {
        ElementVisitor visitor;
        for (MO_Module* module : std::vector<MO_Module*>{&_group, &_element, &_peg, &_display})
            module->accept(visitor);
        QCOMPARE(visitor.elements, std::vector<MO_ElementModule*>{&_element});
    }

    void a_group_passes_on_itself_alone()
    {
        MO_GroupModule group{QString()};
        group.insertNode(std::make_unique<MO_PegModule>(QString()));
        FallbackVisitor visitor;
        group.accept(visitor);
        QCOMPARE(visitor.modules, std::vector<MO_Module*>{&group});
    }
};

QTEST_GUILESS_MAIN(tst_MO_ModuleVisitor)
#include "tst_MO_ModuleVisitor.moc"
