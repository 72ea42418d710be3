// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ImportResult.h"

#include "workbench/modelstream/OneLine.h"

#include <QCoreApplication>

namespace {

constexpr int reasonLimit = 200;

} // namespace

QString ImportResult::errorStart(const QString& path)
{
    return (path.isEmpty() ? QCoreApplication::translate("ImportResult", "(no file name)")
                           : oneLine(path)) +
           QLatin1String(": ");
}

ImportResult ImportResult::failure(const QString& path, const QString& reason)
{
    ImportResult result;
    result.error = errorStart(path) + shortLine(reason, reasonLimit);
    return result;
}

ImportResult ImportResult::outOfMemory(const QString& path)
{
    return failure(path, QCoreApplication::translate(
                             "ImportResult", "there is not enough memory to read the file"));
}

ImportResult ImportResult::cancellation(const QString& path)
{
    ImportResult result =
        failure(path, QCoreApplication::translate("ImportResult", "the import was cancelled"));
    result.cancelled = true;
    return result;
}
