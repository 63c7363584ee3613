// Draws the sample pictures of the wizard's pages for docs/pictures.md, one file NAME.svg each. Usage:
// make_pictures FOLDER

#include <filesystem>
#include <fstream>
#include <iostream>

#include "pages/SamplePictures.h"
#include "pages/pictures/Svg.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: make_pictures FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  for (const std::string_view name : plotsmith::aSamplePictureNames) {
    const auto path = folder / (std::string(name) + ".svg");
    std::ofstream file(path, std::ios::binary);
    file << plotsmith::pictures::Svg(plotsmith::SamplePicture(name));
    if (!file.flush()) {
      std::cerr << "make_pictures: " << path.string() << " can't be written\n";
      return 1;
    }
  }
}
