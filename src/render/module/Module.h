#pragma once

/// The entry points of the module that draws. It is a shared library which a program loads when it draws for
/// the first time, so that other commands don't wait for the graphics libraries.
namespace plotsmith::render {

class Painter;

/// The file name of the module.
inline constexpr const char* kModuleFile = "render.so";

/// Functions that the module exports. One returns the version of Plotsmith that the module belongs to, the
/// other the painter, which exists until the process ends.
///@{
using ModuleVersion = const char*();
using ModulePainter = const Painter*();
inline constexpr const char* kVersionFunction = "plotsmith_render_version";
inline constexpr const char* kPainterFunction = "plotsmith_render_painter";
///@}

}  // namespace plotsmith::render
