// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The numbers of the Application Kit that programs on both systems agree on.
#include <AppDefs.h>
#include <Clipboard.h>
#include <Looper.h>
#include <Message.h>
#include <MessageFilter.h>
#include <Roster.h>


namespace {

constexpr uint32
code(const char (&text)[5])
{
	uint32 value = 0;
	for (int i = 0; i < 4; i++)
		value = value << 8 | static_cast<unsigned char>(text[i]);
	return value;
}

} // namespace


static_assert(code("_QRQ") == 0x5f515251);

// Applications and loops.
static_assert(B_QUIT_REQUESTED == code("_QRQ") && B_CLOSE_REQUESTED == code("_QRQ"));
static_assert(B_ABOUT_REQUESTED == code("_ABR") && B_READY_TO_RUN == code("_RTR"));
static_assert(B_ARGV_RECEIVED == code("_ARG") && B_REFS_RECEIVED == code("_RRC"));
static_assert(B_APP_ACTIVATED == code("_ACT") && B_WINDOW_ACTIVATED == code("_ACT"));
static_assert(B_PULSE == code("_PUL") && B_SILENT_RELAUNCH == code("AREL"));
static_assert(_QUIT_ == code("_QIT") && B_CANCEL == code("_CNC"));

// Input.
static_assert(B_KEY_DOWN == code("_KYD") && B_KEY_UP == code("_KYU"));
static_assert(B_UNMAPPED_KEY_DOWN == code("_UKD") && B_UNMAPPED_KEY_UP == code("_UKU"));
static_assert(B_MODIFIERS_CHANGED == code("_MCH"));
static_assert(B_MOUSE_DOWN == code("_MDN") && B_MOUSE_UP == code("_MUP"));
static_assert(B_MOUSE_MOVED == code("_MMV") && B_MOUSE_WHEEL_CHANGED == code("_MWC"));
static_assert(B_MOUSE_IDLE == code("_MSI") && _MESSAGE_DROPPED_ == code("_MDP"));

// Windows and views.
static_assert(B_WINDOW_MOVED == code("_WMV") && B_WINDOW_RESIZED == code("_WRS"));
static_assert(B_VIEW_MOVED == code("_VMV") && B_VIEW_RESIZED == code("_VRS"));
static_assert(B_ZOOM == code("_WZM") && B_MINIMIZE == code("_WMN"));
static_assert(B_SCREEN_CHANGED == code("_SCH") && B_WORKSPACE_ACTIVATED == code("_WAC"));
static_assert(B_WORKSPACES_CHANGED == code("_WCG"));
static_assert(B_COLORS_UPDATED == code("_CLU") && B_FONTS_UPDATED == code("_FNU"));
static_assert(_UPDATE_ == code("_UPD") && B_INVALIDATE == code("_IVL"));
static_assert(B_WINDOW_MOVE_TO == code("WDMT") && B_WINDOW_MOVE_BY == code("WDMB"));

// Scripting.
static_assert(B_GET_PROPERTY == code("PGET") && B_SET_PROPERTY == code("PSET"));
static_assert(B_EXECUTE_PROPERTY == code("PEXE") && B_COUNT_PROPERTIES == code("PCNT"));
static_assert(B_CREATE_PROPERTY == code("PCRT") && B_DELETE_PROPERTY == code("PDEL"));
static_assert(B_GET_SUPPORTED_SUITES == code("SUIT") && B_REPLY == code("RPLY"));
static_assert(B_NO_REPLY == code("NONE") && B_MESSAGE_NOT_UNDERSTOOD == code("MNOT"));
static_assert(B_NO_SPECIFIER == 0 && B_DIRECT_SPECIFIER == 1 && B_INDEX_SPECIFIER == 2);
static_assert(B_REVERSE_INDEX_SPECIFIER == 3 && B_RANGE_SPECIFIER == 4);
static_assert(B_REVERSE_RANGE_SPECIFIER == 5 && B_NAME_SPECIFIER == 6 && B_ID_SPECIFIER == 7);
static_assert(B_SPECIFIERS_END == 128);

// Data.
static_assert(B_SIMPLE_DATA == code("DATA") && B_MIME_DATA == code("MIME"));
static_assert(B_CUT == code("CCUT") && B_COPY == code("COPY") && B_PASTE == code("PSTE"));
static_assert(B_SELECT_ALL == code("SALL") && B_SAVE_REQUESTED == code("SAVE"));
static_assert(B_NODE_MONITOR == code("NDMN") && B_QUERY_UPDATE == code("QUPD"));
static_assert(B_OBSERVER_NOTICE_CHANGE == code("NTCH"));
static_assert(B_CONTROL_INVOKED == code("CIVK") && B_CONTROL_MODIFIED == code("CMOD"));
static_assert(B_CLIPBOARD_CHANGED == code("CLCH"));

// The roster.
static_assert(B_SINGLE_LAUNCH == 0 && B_MULTIPLE_LAUNCH == 1 && B_EXCLUSIVE_LAUNCH == 2);
static_assert(B_LAUNCH_MASK == 3 && B_BACKGROUND_APP == 4 && B_ARGV_ONLY == 8);
static_assert(B_REQUEST_LAUNCHED == 1 && B_REQUEST_QUIT == 2 && B_REQUEST_ACTIVATED == 4);
static_assert(B_SOME_APP_LAUNCHED == code("BRAS") && B_SOME_APP_QUIT == code("BRAQ"));
static_assert(B_SOME_APP_ACTIVATED == code("BRAW"));
static_assert(sizeof(app_info::signature) == 240);

// Filters and loopers.
static_assert(B_SKIP_MESSAGE == 0 && B_DISPATCH_MESSAGE == 1);
static_assert(B_ANY_DELIVERY == 0 && B_DROPPED_DELIVERY == 1 && B_PROGRAMMED_DELIVERY == 2);
static_assert(B_ANY_SOURCE == 0 && B_REMOTE_SOURCE == 1 && B_LOCAL_SOURCE == 2);
static_assert(B_LOOPER_PORT_DEFAULT_CAPACITY == 200);
