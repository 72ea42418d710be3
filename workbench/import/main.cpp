// SPDX-License-Identifier: MIT

#include "workbench/import/ImportConfinement.h"
#include "workbench/import/ModelImporter.h"
#include "workbench/language/Translations.h"
#include "workbench/modelstream/ImportExit.h"
#include "workbench/modelstream/ImportProgress.h"
#include "workbench/modelstream/ModelStreamWriter.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace {

struct Order
{
    QString path;
    qint64 memory = 0;
    int seconds = 0;
};

std::optional<Order> parse(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QFile::decodeName(argv[i]);
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("memory"), {}, QStringLiteral("bytes")},
                       {QStringLiteral("seconds"), {}, QStringLiteral("seconds")}});
    Order order;
    if (!parser.parse(arguments) || parser.positionalArguments().size() != 1)
        return std::nullopt;
    order.path = parser.positionalArguments().first();
    order.memory = parser.value(QStringLiteral("memory")).toLongLong();
    order.seconds = parser.value(QStringLiteral("seconds")).toInt();
    return order.memory > 0 && order.seconds > 0 ? std::optional(order) : std::nullopt;
}

/// Keeps the way out for the answer alone: libraries print as they like. Less than 0 if that fails.
int takeStandardOutput()
{
    constexpr int firstOther = 3;
    const int answer = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, firstOther);
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (answer < 0 || nowhere < 0)
        return -1;
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (dup2(nowhere, stream) < 0)
            return -1;
    }
    close(nowhere);
    return answer;
}

/// Tells the reader of the stream how far the import is; ends the process when there is none.
class SentProgress : public ImportProgress
{
public:
    explicit SentProgress(ModelStreamWriter& writer)
        : _writer(writer)
    {
    }

    void report(double fraction) override
    {
        // Finer steps would tell nobody anything.
        constexpr double step = 0.01;
        if (fraction < _sent + step && fraction < 1.0)
            return;
        _sent = fraction;
        if (!_writer.writeProgress(fraction))
            _exit(ImportUnheard);
    }
    /// Who has no use for the answer any more kills the process.
    bool isCancelled() const override { return false; }

private:
    ModelStreamWriter& _writer;
    double _sent = -1.0;
};

} // namespace

/// Reads one model file for another program, which trusts neither the file nor this process, and
/// writes the model, or why there is none, to standard output. See ModelStreamFormat.h.
int main(int argc, char** argv)
{
    const std::optional<Order> order = parse(argc, argv);
    if (!order) {
        std::fputs("usage: subnode-import --memory BYTES --seconds SECONDS [--] FILE\n", stderr);
        return ImportMisused;
    }
    // The answer is for the user to read. The files of the language are out of reach later on.
    const QCoreApplication application(argc, argv);
    const Translations translations;
    osg::osgInit(argc, argv);
    const int answer = takeStandardOutput();
    QFile output;
    if (answer < 0 || !ImportConfinement::enter(order->memory, order->seconds, answer) ||
        !output.open(answer, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return ImportUnheard;

    ModelStreamWriter writer(output);
    SentProgress progress(writer);
    const ImportResult result = ModelImporter::importModel(order->path, &progress);
    // The system takes everything back at once; taking the model apart first would only cost time.
    _exit(writer.writeResult(result) ? ImportDone : ImportUnheard);
}
