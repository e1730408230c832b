// SPDX-License-Identifier: Apache-2.0
#include "eqtable.h"

namespace audiosetting {
namespace eq {

const char *bandCaption(int band) {
    static const char *const captions[eqBandCount] = {"63",   "100",  "160", "250",  "400", "630", "1k",
                                                      "1.6k", "2.5k", "4k",  "6.3k", "10k", "16k"};
    return captions[band];
}

const QList<int> &levelGains() {
    static const QList<int> gains = [] {
        QList<int> list;
        for (int gain = maxGain; gain >= -maxGain; --gain) {
            list.append(gain);
        }
        return list;
    }();
    return gains;
}

int levelOfGain(int gain) {
    return gain >= -maxGain && gain <= maxGain ? maxGain - gain : 0;
}

int fromOtherEnd(int end, int value) {
    return int(quint32(end) - quint32(value));
}

const QList<tagAudioEQItem_T> &curves() {
    static const QList<tagAudioEQItem_T> table = {
        //         63  100 160  250 400 630  1k 1.6k 2.5k 4k 6.3k 10k 16k
        {0, 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},      {1, 1, {1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 3, 1}},
        {2, 2, {2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4}},      {3, 3, {5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4}},
        {7, 4, {6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4}}, {8, 5, {10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4}},
        {4, 6, {1, 2, 2, 1, 0, -1, 1, 1, 2, 2, 1, 2, 2}},     {5, 7, {6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4}},
        {16, 16, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},    {17, 17, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {18, 18, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},    {19, 19, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {20, 20, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    };
    return table;
}

int findByType(const QList<tagAudioEQItem_T> &table, int type) {
    for (int row = 0; row < table.size(); ++row) {
        if (table.at(row).type == type) {
            return row;
        }
    }
    return -1;
}

tagAudioEQItem_T curveOfType(const QList<tagAudioEQItem_T> &table, int type) {
    const int row = findByType(table, type);
    if (row >= 0) {
        return table.at(row);
    }
    tagAudioEQItem_T flat = tagAudioEQItem_T();
    flat.type = type;
    return flat;
}

}  // namespace eq
}  // namespace audiosetting
