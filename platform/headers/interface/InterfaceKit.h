// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef INTERFACE_KIT_H
#define INTERFACE_KIT_H

#include <Alert.h>
#include <Bitmap.h>
#include <Box.h>
#include <Button.h>
#include <CheckBox.h>
#include <Control.h>
#include <Font.h>
#include <GraphicsDefs.h>
#include <InterfaceDefs.h>
#include <Menu.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <Point.h>
#include <PopUpMenu.h>
#include <Rect.h>
#include <Region.h>
#include <Screen.h>
#include <SeparatorItem.h>
#include <Size.h>
#include <StringView.h>
#include <TextControl.h>
#include <TextView.h>
#include <View.h>
#include <Window.h>

#endif // INTERFACE_KIT_H
