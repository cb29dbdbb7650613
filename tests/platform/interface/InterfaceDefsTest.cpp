// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The numbers of the Interface Kit that programs on both systems agree on, as far as they do not
// stand with the tests of what they mean.
#include <Alert.h>
#include <Bitmap.h>
#include <Control.h>
#include <Font.h>
#include <GraphicsDefs.h>
#include <InterfaceDefs.h>
#include <Menu.h>
#include <Size.h>
#include <View.h>
#include <Window.h>

// Pictures.
static_assert(B_NO_COLOR_SPACE == 0 && B_GRAY1 == 1 && B_RGB24 == 3 && B_RGB16 == 5);
static_assert(B_COLOR_8_BIT == 4 && B_RGB_32_BIT == 8 && B_RGB15 == 0x10 && B_RGBA15 == 0x2010);
static_assert(B_OP_OVER == 1 && B_OP_ERASE == 2 && B_OP_INVERT == 3 && B_OP_ADD == 4);
static_assert(B_OP_SUBTRACT == 5 && B_OP_MIN == 7 && B_OP_MAX == 8);
static_assert(B_PIXEL_ALPHA == 0 && B_CONSTANT_ALPHA == 1);
static_assert(B_ALPHA_OVERLAY == 0 && B_ALPHA_COMPOSITE == 1);
static_assert(B_TRANSPARENT_8_BIT == 0xff && sizeof(pattern) == 8);
static_assert(sizeof(color_map) == 4 + 256 * 4 + 256 + 32768);
static_assert(B_BITMAP_CLEAR_TO_WHITE == 1 && B_BITMAP_IS_AREA == 4 && B_BITMAP_IS_LOCKED == 0xc);
static_assert(B_ANY_BYTES_PER_ROW == -1);
static_assert(B_TILE_BITMAP_X == 1 && B_TILE_BITMAP_Y == 2 && B_TILE_BITMAP == 3);
static_assert(B_FILTER_BITMAP_BILINEAR == 0x100);

// Keys: characters, raw codes, modifiers.
static_assert(B_HOME == 1 && B_END == 4 && B_INSERT == 5 && B_BACKSPACE == 8 && B_TAB == 9);
static_assert(B_RETURN == 0x0a && B_PAGE_UP == 0x0b && B_PAGE_DOWN == 0x0c);
static_assert(B_FUNCTION_KEY == 0x10 && B_ESCAPE == 0x1b && B_LEFT_ARROW == 0x1c);
static_assert(B_UP_ARROW == 0x1e && B_DOWN_ARROW == 0x1f && B_SPACE == 0x20);
static_assert(B_F2_KEY == 3 && B_F3_KEY == 4 && B_F4_KEY == 5 && B_F5_KEY == 6 && B_F6_KEY == 7);
static_assert(B_F7_KEY == 8 && B_F8_KEY == 9 && B_F9_KEY == 0x0a && B_F10_KEY == 0x0b);
static_assert(B_F11_KEY == 0x0c && B_PRINT_KEY == 0x0e && B_SCROLL_KEY == 0x0f);
static_assert(B_COMMAND_KEY == 2 && B_CONTROL_KEY == 4 && B_SCROLL_LOCK == 0x10);
static_assert(B_OPTION_KEY == 0x40 && B_LEFT_SHIFT_KEY == 0x100 && B_RIGHT_SHIFT_KEY == 0x200);
static_assert(B_LEFT_COMMAND_KEY == 0x400 && B_RIGHT_COMMAND_KEY == 0x800);
static_assert(B_LEFT_CONTROL_KEY == 0x1000 && B_LEFT_OPTION_KEY == 0x4000);

// Controls, lines, texts.
static_assert(B_PLAIN_BORDER == 0 && B_FANCY_BORDER == 1 && B_NO_BORDER == 2);
static_assert(B_HORIZONTAL == 0 && B_VERTICAL == 1);
static_assert(B_WIDTH_AS_USUAL == 0 && B_WIDTH_FROM_WIDEST == 1 && B_WIDTH_FROM_LABEL == 2);
static_assert(B_ROUND_JOIN == 0 && B_BEVEL_JOIN == 2 && B_BUTT_JOIN == 3 && B_SQUARE_JOIN == 4);
static_assert(B_ROUND_CAP == 0 && B_NORMAL_MOUSE == 0);
static_assert(B_CONTROL_OFF == 0 && B_CONTROL_ON == 1);
static_assert(B_CHAR_SPACING == 0 && B_STRING_SPACING == 1);
static_assert(B_UNDERSCORE_FACE == 2 && B_STRIKEOUT_FACE == 0x10);
static_assert(B_DISABLE_ANTIALIASING == 1 && B_FORCE_ANTIALIASING == 2);
static_assert(B_TRUNCATE_END == 0 && B_TRUNCATE_BEGINNING == 1 && B_TRUNCATE_MIDDLE == 2);
static_assert(B_SIZE_UNSET == -2);

// Colors by purpose.
static_assert(B_NO_COLOR == 0 && B_PANEL_BACKGROUND_COLOR == 1 && B_MENU_BACKGROUND_COLOR == 2);
static_assert(B_WINDOW_TAB_COLOR == 3 && B_NAVIGATION_BASE_COLOR == 4);
static_assert(B_KEYBOARD_NAVIGATION_COLOR == 4 && B_DESKTOP_COLOR == 5);
static_assert(B_MENU_SELECTED_BACKGROUND_COLOR == 6 && B_MENU_ITEM_TEXT_COLOR == 7);
static_assert(B_MENU_SELECTED_ITEM_TEXT_COLOR == 8 && B_MENU_SELECTED_BORDER_COLOR == 9);
static_assert(B_PANEL_TEXT_COLOR == 10 && B_DOCUMENT_BACKGROUND_COLOR == 11);
static_assert(B_DOCUMENT_TEXT_COLOR == 12 && B_CONTROL_BACKGROUND_COLOR == 13);
static_assert(B_CONTROL_TEXT_COLOR == 14 && B_CONTROL_BORDER_COLOR == 15);
static_assert(B_CONTROL_HIGHLIGHT_COLOR == 16 && B_NAVIGATION_PULSE_COLOR == 17);
static_assert(B_SHINE_COLOR == 18 && B_SHADOW_COLOR == 19 && B_TOOL_TIP_BACKGROUND_COLOR == 20);
static_assert(B_TOOL_TIP_TEXT_COLOR == 21 && B_WINDOW_TEXT_COLOR == 22);
static_assert(B_WINDOW_INACTIVE_TAB_COLOR == 23 && B_WINDOW_INACTIVE_TEXT_COLOR == 24);
static_assert(B_WINDOW_BORDER_COLOR == 25 && B_WINDOW_INACTIVE_BORDER_COLOR == 26);
static_assert(B_CONTROL_MARK_COLOR == 27 && B_LIST_BACKGROUND_COLOR == 28);
static_assert(B_LIST_SELECTED_BACKGROUND_COLOR == 29 && B_LIST_ITEM_TEXT_COLOR == 30);
static_assert(B_LIST_SELECTED_ITEM_TEXT_COLOR == 31 && B_SCROLL_BAR_THUMB_COLOR == 32);
static_assert(B_LINK_TEXT_COLOR == 33 && B_STATUS_BAR_COLOR == 37);
static_assert(B_SUCCESS_COLOR == 100 && B_FAILURE_COLOR == 101);

// Views.
static_assert(B_TERTIARY_MOUSE_BUTTON == 4 && B_INSIDE_VIEW == 1 && B_LOCK_WINDOW_FOCUS == 1);
static_assert(B_FONT_FAMILY_AND_STYLE == 1 && B_FONT_SIZE == 2 && B_FONT_SHEAR == 4);
static_assert(B_FONT_ROTATION == 8 && B_FONT_SPACING == 0x10 && B_FONT_ENCODING == 0x20);
static_assert(B_FONT_FACE == 0x40 && B_FONT_FLAGS == 0x80 && B_FONT_FALSE_BOLD_WIDTH == 0x100);
static_assert(B_FONT_ALL == 0x1ff);
static_assert(B_NAVIGABLE_JUMP == 0x08000000 && B_NAVIGABLE == 0x02000000);
static_assert(B_SUBPIXEL_PRECISE == 0x01000000 && B_INPUT_METHOD_AWARE == 0x00400000);
static_assert(B_TRANSPARENT_BACKGROUND == 0x00040000);
static_assert(B_FOLLOW_NONE == 0 && B_FOLLOW_LEFT == 0x0202 && B_FOLLOW_RIGHT == 0x0404);
static_assert(B_FOLLOW_LEFT_RIGHT == 0x0204 && B_FOLLOW_TOP == 0x1010);
static_assert(B_FOLLOW_BOTTOM == 0x3030 && B_FOLLOW_TOP_BOTTOM == 0x1030);
static_assert(B_FOLLOW_ALL_SIDES == 0x1234);

// Windows.
static_assert(B_UNTYPED_WINDOW == 0 && B_TITLED_WINDOW == 1 && B_MODAL_WINDOW == 3);
static_assert(B_DOCUMENT_WINDOW == 11 && B_BORDERED_WINDOW == 20 && B_FLOATING_WINDOW == 21);
static_assert(B_TITLED_WINDOW_LOOK == 1 && B_MODAL_WINDOW_LOOK == 3);
static_assert(B_FLOATING_WINDOW_LOOK == 7 && B_DOCUMENT_WINDOW_LOOK == 11);
static_assert(B_NO_BORDER_WINDOW_LOOK == 19 && B_BORDERED_WINDOW_LOOK == 20);
static_assert(B_NORMAL_WINDOW_FEEL == 0 && B_MODAL_APP_WINDOW_FEEL == 1);
static_assert(B_MODAL_SUBSET_WINDOW_FEEL == 2 && B_MODAL_ALL_WINDOW_FEEL == 3);
static_assert(B_FLOATING_APP_WINDOW_FEEL == 4 && B_FLOATING_SUBSET_WINDOW_FEEL == 5);
static_assert(B_FLOATING_ALL_WINDOW_FEEL == 6);
static_assert(B_NOT_MOVABLE == 1 && B_NOT_RESIZABLE == 2 && B_NOT_H_RESIZABLE == 4);
static_assert(B_NOT_V_RESIZABLE == 8 && B_WILL_ACCEPT_FIRST_CLICK == 0x10);
static_assert(B_NOT_CLOSABLE == 0x20 && B_NOT_ZOOMABLE == 0x40 && B_AVOID_FRONT == 0x80);
static_assert(B_NO_WORKSPACE_ACTIVATION == 0x100 && B_OUTLINE_RESIZE == 0x1000);
static_assert(B_AVOID_FOCUS == 0x2000 && B_NOT_MINIMIZABLE == 0x4000);
static_assert(B_ASYNCHRONOUS_CONTROLS == 0x80000 && B_QUIT_ON_WINDOW_CLOSE == 0x100000);
static_assert(B_SAME_POSITION_IN_ALL_WORKSPACES == 0x200000);
static_assert(B_AUTO_UPDATE_SIZE_LIMITS == 0x400000 && B_CLOSE_ON_ESCAPE == 0x800000);
static_assert(B_CURRENT_WORKSPACE == 0 && B_ALL_WORKSPACES == 0xffffffff);

// Menus and alerts.
static_assert(B_ITEMS_IN_ROW == 0 && B_ITEMS_IN_COLUMN == 1 && B_ITEMS_IN_MATRIX == 2);
static_assert(B_EMPTY_ALERT == 0 && B_INFO_ALERT == 1 && B_IDEA_ALERT == 2);
static_assert(B_WARNING_ALERT == 3 && B_STOP_ALERT == 4);
static_assert(B_EVEN_SPACING == 0 && B_OFFSET_SPACING == 1);
