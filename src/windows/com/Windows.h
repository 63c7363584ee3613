#pragma once

/// @file
/// The headers of Windows, which need this order, without what we don't use.
// clang-format off
#include <windows.h>
#include <objbase.h>
#include <oleauto.h>
#include <ocidl.h>
// clang-format on
