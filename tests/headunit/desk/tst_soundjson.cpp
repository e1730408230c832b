// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/soundjson.h"

#include <QTest>

using headunit::CrossoverFilter;
using headunit::SoundState;

namespace {

SoundState thereAndBack(const SoundState &state) {
    return headunit::soundFromJson(headunit::soundToJson(state));
}

/// Counts through the numbers of a state, and changes the one that is next at \a chosen.
struct Change {
    int chosen;
    int counted = 0;

    void operator()(int &value) { value += counted++ == chosen ? 3 : 0; }
    void operator()(bool &value) { value = value != (counted++ == chosen); }
    void operator()(CrossoverFilter &filter) { eachOf(filter.members()); }
    template <typename Value, size_t count> void operator()(std::array<Value, count> &values) {
        for (Value &value : values) {
            (*this)(value);
        }
    }
    /// \a members of a state that may be changed.
    template <typename... Member> void eachOf(const std::tuple<const Member &...> &members) {
        std::apply([this](const Member &...member) { ((*this)(const_cast<Member &>(member)), ...); }, members);
    }
};

/// A state has as many members as members() gives: this compiles with no other number of names.
[[maybe_unused]] void countMembers(const SoundState &state) {
    [[maybe_unused]] const auto &[a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r] = state;
    static_assert(std::tuple_size_v<decltype(state.members())> == 18);
}

/// What plays just now, and what a comparison takes away from it.
SoundState withoutThePresent(SoundState state) {
    const SoundState fresh;
    state.activeSource = fresh.activeSource;
    state.muted = fresh.muted;
    state.activePrompts = fresh.activePrompts;
    state.trim = fresh.trim;
    return state;
}

}  // namespace

class TestSoundJson : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void eachNumberIsKept();
    void rowsOfAnotherLength();
};

void TestSoundJson::eachNumberIsKept() {
    int lost = 0;
    int chosen = 0;
    for (bool more = true; more; ++chosen) {
        SoundState state;
        Change change{chosen};
        change.eachOf(state.members());
        more = chosen + 1 < change.counted;
        QVERIFY2(state != SoundState(), qPrintable(QString::number(chosen)));
        const SoundState kept = withoutThePresent(state);
        QVERIFY2(thereAndBack(state) == kept, qPrintable(QString("number %1 of the state").arg(chosen)));
        lost += kept != state;
    }
    // activeSource, muted, activePrompts and trim
    QCOMPARE(lost, 3 + SoundState::prompts);
    QCOMPARE(headunit::soundToJson(SoundState()).size(), chosen - lost);
}

void TestSoundJson::rowsOfAnotherLength() {
    SoundState state;
    state.eqType = 5;
    state.delay.fill(7);
    QJsonArray numbers = headunit::soundToJson(state);
    numbers.append(1);
    QVERIFY(headunit::soundFromJson(numbers) == state);
    numbers.removeLast();
    numbers.removeLast();
    state.delay.back() = 0;
    QVERIFY(headunit::soundFromJson(numbers) == state);
    QVERIFY(headunit::soundFromJson(QJsonArray()) == SoundState());
}

QTEST_GUILESS_MAIN(TestSoundJson)
#include "tst_soundjson.moc"
