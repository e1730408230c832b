// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <random>

/// The calls of the pages to the store and the services for one action of a user, each chosen at random.
class PageCalls {
public:
    explicit PageCalls(unsigned seed) : m_random(seed) {}

    /// One action on any page.
    void any();
    /// Accepting the reset dialog.
    static void reset();

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    int from(int low, int high) { return low + below(high - low + 1); }

    void defeat();
    void subwooferSwitch();
    void subwooferLevel();
    void phase();
    void balanceFader();
    void loudness();
    void curve();
    void band();
    void crossover();
    void delays();
    void volume();
    void sourceGain();

    std::mt19937 m_random;
};
