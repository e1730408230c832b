// SPDX-License-Identifier: Apache-2.0
#include "translator.h"

#include "headunit/toolkit/language.h"

QString Translator::translate(int id) {
    return headunit::Language::text(id);
}
