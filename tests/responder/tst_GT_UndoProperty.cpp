// SPDX-License-Identifier: MIT
#include <QTest>
QTEST_APPLESS_MAIN(QObject)
