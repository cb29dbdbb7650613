// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PICTURES_H
#define PICTURES_H

#include <string>

class QImage;


namespace test {

// A picture whose left half is red and whose right half is blue.
QImage TwoColors(int width, int height);

// Writes it in the format that the extension names. Returns the path.
std::string SavePicture(const QImage& image, const std::string& path);

// A JPEG file with the mark of a turned camera, 1 to 8.
std::string TurnedPicture(const QImage& image, int orientation);

// The beginning of a PNG file that claims this size, with no pixels at all.
std::string PngHeader(unsigned int width, unsigned int height);

} // namespace test

#endif // PICTURES_H
