#pragma once

/// The entry points of the modules that measure texts and draw. They are shared libraries that a program
/// loads when it draws for the first time, so that other commands don't wait for the graphics libraries. SVG
/// needs only the module of the fonts, which loads in a fraction of the time. It measures texts that need
/// Pango with the other module.
namespace plotsmith::render {

class Painter;
class TextMeasure;

/// The file names of the modules.
///@{
inline constexpr const char* kFontsFile = "fonts.so";
inline constexpr const char* kPainterFile = "render.so";
///@}

/// The function of both modules that returns the version of Plotsmith that the module belongs to.
///@{
using ModuleVersion = const char*();
inline constexpr const char* kVersionFunction = "plotsmith_module_version";
///@}

/// Returns the measure of the texts that the module of the fonts doesn't measure.
using OtherMeasure = const TextMeasure&();

/// Functions that return the text measure of the one module and the painter of the other. These objects exist
/// until the process ends.
///@{
using ModuleMeasure = const TextMeasure*(OtherMeasure* others);
using ModulePainter = const Painter*();
inline constexpr const char* kMeasureFunction = "plotsmith_fonts_measure";
inline constexpr const char* kPainterFunction = "plotsmith_render_painter";
///@}

}  // namespace plotsmith::render
