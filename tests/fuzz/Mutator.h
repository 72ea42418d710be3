// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <random>

/// Makes inputs that are nearly right out of ones that are: the same ones in every run.
class Mutator
{
public:
    /// Each of the seeds may be anything; there must be at least one.
    Mutator(QByteArrayList seeds, quint32 number);

    QByteArray next();

private:
    void change(QByteArray& input);
    qsizetype below(qsizetype end);

    QByteArrayList _seeds;
    std::mt19937 _random;
};
