// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TYPE_ICONS_H
#define TYPE_ICONS_H

#include <string>

#include <MimeType.h>
#include <SupportDefs.h>

class BBitmap;
class QImage;


namespace hosted {

// B_OK for a bitmap that icons of this size can be put into, else B_BAD_VALUE.
status_t CheckIconBitmap(const BBitmap* bitmap, icon_size size);

// The icon of a type from the desktop's theme, which only the display thread knows, else one drawn
// for its supertype. A null image for a type of an unknown kind.
QImage IconOfType(const std::string& type, icon_size size);

// The same into a bitmap that was checked. B_ERROR if there is none.
status_t PutIconOfType(const std::string& type, icon_size size, BBitmap* bitmap);

} // namespace hosted

#endif // TYPE_ICONS_H
