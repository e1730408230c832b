#include "translator.h"

#include "headunit/toolkit/language.h"

QString Translator::translate(int id) {
    return headunit::Language::text(id);
}
