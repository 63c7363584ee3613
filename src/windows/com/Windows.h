#pragma once

/// @file
/// The headers of Windows in the order that they need, without the parts that Plotsmith doesn't use.
// clang-format off
#include <windows.h>
#include <objbase.h>
#include <oleauto.h>
#include <ocidl.h>
// clang-format on
