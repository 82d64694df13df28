// A page of a list as the program prints it, with texts too long for their cells.
#pragma once

#include <string>

#include "platform/printer.h"

namespace support {

inline platform::PageGrid pageGrid(int rows) {
  platform::PageGrid grid;
  for (const int width : {500, 3500, 2000, 1200, 1500, 1500, 1200, 900, 1835, 2000, 300, 1000}) {
    grid.columns.push_back({"Le Nom de la Séance", width, platform::CellPlace::Centre});
  }
  grid.headHeight = 600;
  grid.kindColumn = 2;
  for (int row = 1; row <= rows; ++row) {
    const std::string name = "Une séance au nom si long qu'il ne peut tenir dans sa cellule, même en petit";
    grid.rows.push_back(
        {row == 1 ? 600 : 315,
         {std::to_string(row), name, "Augmentation Progressive", "80 à 90", "Grand Plateau", "Petit Braquet",
          "-----", "-----", "00:10:00", "Annonce du 16 11 26 à 20 31 05.wav", "x", "132-75 %"}});
  }
  return grid;
}

}  // namespace support
