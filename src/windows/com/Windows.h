#pragma once

/// @file
/// Includes the headers of Windows in the required order, without the parts that Plotsmith doesn't use.
// clang-format off
#include <windows.h>
#include <objbase.h>
#include <oleauto.h>
#include <ocidl.h>
// clang-format on
