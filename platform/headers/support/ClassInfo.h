// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef CLASS_INFO_H
#define CLASS_INFO_H

#include <typeinfo>


#define class_name(object) ((typeid(*(object))).name())
#define cast_as(object, class) (dynamic_cast<class*>(object))
#define is_kind_of(object, class) (dynamic_cast<class*>(object) != 0)
// Of that very class, not of one derived from it.
#define is_instance_of(object, class) (typeid(*(object)) == typeid(class))

#endif // CLASS_INFO_H
