// SPDX-License-Identifier: MIT
#include "host/factories/MO_ModuleFactory.h"
#include "host/scene/MO_DisplayModule.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/MO_TypeKeys.h"

#include <QRegularExpression>
#include <QTest>

#include <set>
#include <typeindex>

namespace {

using Factory = class_factory<MO_Module, QString>;

class OwnModule : public MO_PegModule
{
public:
    OwnModule()
        : MO_PegModule(QStringLiteral("own"))
    {
    }
    QString typeName() const override { return QStringLiteral("OWN_MODULE"); }
};

std::unique_ptr<MO_Module> makeOwn()
{
    return std::make_unique<OwnModule>();
}

bool isOwn(const std::unique_ptr<MO_Module>& module)
{
    return dynamic_cast<const OwnModule*>(module.get());
}

} // namespace

class tst_MO_ModuleFactory : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void makes_a_module_for_the_type_name_of_each_kind()
    {
        const MO_DisplayModule display{QString()};
        const MO_ElementModule element{QString()};
        const MO_GroupModule group{QString()};
        const MO_KinematicOutputModule kinematicOutput{QString()};
        const MO_PassThroughModule passThrough{QString()};
        const MO_PegModule peg{QString()};
        std::set<std::type_index> made;
        for (const MO_Module* kind : std::initializer_list<const MO_Module*>{
                 &display, &element, &group, &kinematicOutput, &passThrough, &peg}) {
            const auto module = MO_ModuleFactorySingleton().create(kind->typeName());
            QVERIFY(module);
            QCOMPARE(module->typeName(), kind->typeName());
            const MO_Module& plain = *module;
            QVERIFY(typeid(plain) == typeid(*kind));
            made.insert(typeid(plain));
        }
        QCOMPARE(made.size(), 6u);
    }

    void makes_detached_nodes_with_their_ports()
    {
        const auto module = MO_ModuleFactorySingleton().create(STRING_KEY_3D_KINEMATIC_OUTPUT);
        const auto* node = dynamic_cast<const MO_Node*>(module.get());
        QVERIFY(node);
        QVERIFY(!node->scene() && !node->parentGroup());
        QVERIFY(node->inPort(0) && node->outPort(0));
    }

    void makes_a_new_module_each_time()
    {
        const auto first = MO_ModuleFactorySingleton().create(QStringLiteral("PEG"));
        const auto second = MO_ModuleFactorySingleton().create(QStringLiteral("PEG"));
        QVERIFY(first && second && first != second);
    }

    void is_the_same_factory_for_all()
    {
        QCOMPARE(&MO_ModuleFactorySingleton(), &MO_ModuleFactorySingleton());
        MO_ModuleFactorySingleton().registerClass(QStringLiteral("OWN_MODULE"), makeOwn);
        QVERIFY(isOwn(MO_ModuleFactorySingleton().create(QStringLiteral("OWN_MODULE"))));
    }

    void refuses_a_key_that_nobody_registered()
    {
        const Factory none;
        for (const QString& key : {QString(), QStringLiteral("peg"), QStringLiteral("PEG ")}) {
            QVERIFY_THROWS_EXCEPTION(not_registered, MO_ModuleFactorySingleton().create(key));
            QVERIFY_THROWS_EXCEPTION(not_registered, none.create(key));
        }
    }

    void says_what_is_wrong_with_a_key()
    {
        QByteArray text;
        try {
            MO_ModuleFactorySingleton().create(QStringLiteral("unknown"));
        } catch (const std::exception& e) {
            text = e.what();
        }
        QCOMPARE(text, QByteArray("Class/key not registered"));
    }

    void knows_classes_by_keys_of_any_type()
    {
        class_factory<MO_Module, int> factory;
        factory.registerClass(7, makeOwn);
        QVERIFY(isOwn(factory.create(7)));
        QVERIFY_THROWS_EXCEPTION(not_registered, factory.create(8));
    }

    void a_later_registration_takes_the_place_of_an_earlier_one()
    {
        Factory factory;
        factory.registerClass(QStringLiteral("key"),
                              [] { return std::make_unique<MO_PegModule>(QString()); });
        QVERIFY(!isOwn(factory.create(QStringLiteral("key"))));
        factory.registerClass(QStringLiteral("key"), makeOwn);
        QVERIFY(isOwn(factory.create(QStringLiteral("key"))));
    }

    void gives_what_the_creator_gives_also_null()
    {
        Factory factory;
        int asked = 0;
        factory.registerClass(QStringLiteral("key"), [&asked] {
            ++asked;
            return std::unique_ptr<MO_Module>();
        });
        QCOMPARE(asked, 0);
        QVERIFY(!factory.create(QStringLiteral("key")));
        QCOMPARE(asked, 1);
    }
};

QTEST_GUILESS_MAIN(tst_MO_ModuleFactory)
#include "tst_MO_ModuleFactory.moc"
