// SPDX-License-Identifier: MIT
#include "ChildProcesses.h"

#include <QDir>
#include <QFile>

int childProcesses()
{
    int children = 0;
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(threads.filePath(thread + QLatin1String("/children")));
        if (file.open(QIODevice::ReadOnly))
            children += static_cast<int>(file.readAll().split(' ').size()) - 1;
    }
    return children;
}
