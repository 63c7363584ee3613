#pragma once

/// The module that draws: a shared library that a program opens when it has to draw, so that its start
/// doesn't wait for the graphics libraries.
namespace plotsmith::render {

class Painter;

inline constexpr const char* kModuleFile = "render.so";

/// What the module has for others: the version of Plotsmith that it is of, and the painter, which lives as
/// long as the process.
///@{
using ModuleVersion = const char*();
using ModulePainter = const Painter*();
inline constexpr const char* kVersionFunction = "plotsmith_render_version";
inline constexpr const char* kPainterFunction = "plotsmith_render_painter";
///@}

}  // namespace plotsmith::render
