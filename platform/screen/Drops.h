// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DROPS_H
#define DROPS_H

#include <string>
#include <vector>

class BMessage;
class QByteArray;
class QMimeData;


namespace hosted {

// The paths of the local files in a list of URLs (text/uri-list), byte for byte: a name need not be
// valid UTF-8. Everything else in the list is left out.
std::vector<std::string> LocalPaths(const QByteArray& uriList);

// Whether what is dragged can be made a message: files or a color.
bool CanTakeDrop(const QMimeData& data);

// Makes B_SIMPLE_DATA with "refs" of files, B_PASTE with "RGBColor" of a color. False if it is
// neither.
bool MessageForDrop(const QMimeData& data, BMessage& message);

} // namespace hosted

#endif // DROPS_H
