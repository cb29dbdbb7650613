// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef NODE_INFO_ATTRIBUTES_H
#define NODE_INFO_ATTRIBUTES_H


// The attributes in which a file says what it is.
namespace hosted {

inline constexpr const char* kTypeAttribute = "BEOS:TYPE";
inline constexpr const char* kPreferredAppAttribute = "BEOS:PREF_APP";
inline constexpr const char* kHintAttribute = "BEOS:PPATH";
inline constexpr const char* kSignatureAttribute = "BEOS:APP_SIG";
inline constexpr const char* kVersionAttribute = "BEOS:APP_VERSION";
inline constexpr const char* kLargeIconAttribute = "BEOS:L:STD_ICON";
inline constexpr const char* kMiniIconAttribute = "BEOS:M:STD_ICON";

} // namespace hosted

#endif // NODE_INFO_ATTRIBUTES_H
