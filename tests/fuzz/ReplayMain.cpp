// SPDX-License-Identifier: MIT
#include "Mutator.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void feed(const QByteArray& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QByteArrayList seedsIn(const QString& folder)
{
    QByteArrayList seeds;
    for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name)) {
        QFile file(folder + u'/' + name);
        if (file.open(QIODevice::ReadOnly))
            seeds += file.readAll();
    }
    return seeds;
}

} // namespace

/// Stands in for a fuzzer where the compiler has none. Whatever is wrong ends the program.
int main(int argc, char** argv)
{
    constexpr int rounds = 20000;
    constexpr qint64 longestInMilliseconds = 10000;
    const QByteArrayList seeds = argc == 2 ? seedsIn(QFile::decodeName(argv[1])) : QByteArrayList();
    if (seeds.isEmpty()) {
        std::fputs("a folder with seeds is needed\n", stderr);
        return 2;
    }
    feed({});
    for (const QByteArray& seed : seeds)
        feed(seed);
    QElapsedTimer timer;
    timer.start();
    Mutator mutator(seeds, 1);
    int round = 0;
    for (; round < rounds && !timer.hasExpired(longestInMilliseconds); ++round)
        feed(mutator.next());
    std::printf("%d seeds, %d mutations\n", static_cast<int>(seeds.size()), round);
    return 0;
}
