// SPDX-License-Identifier: Apache-2.0
// Compiles with the panel's header as a host has it: nothing before it, nothing but Qt beside it.

#include <eqwidget.h>

#include <type_traits>

static_assert(std::is_base_of<QWidget, audiosetting::EQWidget>::value, "the panel is a widget");
