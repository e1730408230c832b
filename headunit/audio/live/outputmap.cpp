// SPDX-License-Identifier: Apache-2.0
#include "outputmap.h"

#include "outputnames.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace headunit {

bool parseOutputMap(const std::string &text, OutputMap *map, std::string *error) {
    *map = OutputMap();
    std::istringstream entries(text + ',');  // so that a comma at the end leaves an empty entry
    for (std::string entry; std::getline(entries, entry, ',');) {
        const size_t sign = entry.find('=');
        const std::string output = entry.substr(0, sign);
        const auto name = std::find(std::begin(outputNames), std::end(outputNames), output);
        if (sign == std::string::npos || sign + 1 == entry.size()) {
            *error = '"' + entry + "\" is not like FL=front-left";
            return false;
        }
        if (name == std::end(outputNames)) {
            *error = "there is no output \"" + output + "\", but FL, FR, RL, RR, SL and SR";
            return false;
        }
        std::string &channel = (*map)[static_cast<size_t>(name - std::begin(outputNames))];
        if (!channel.empty()) {
            *error = output + " stands in it twice";
            return false;
        }
        channel = entry.substr(sign + 1);
    }
    return true;
}

}  // namespace headunit
