// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/Workspaces.h"

#include <stdlib.h>
#include <string.h>

#include <QGuiApplication>
#include <QWidget>

#include <xcb/xcb.h>


namespace hosted {

namespace {

constexpr uint32 kAllDesktops = 0xffffffff;
// Who asks: an ordinary application, as the window managers' conventions count.
constexpr uint32 kSourceApplication = 1;

struct Connection {
	xcb_connection_t* server = nullptr;
	xcb_window_t root = 0;
};


// Without a server where the desktop does not speak X11.
Connection
connection()
{
	Connection result;
	auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
	if (x11 == nullptr || x11->connection() == nullptr)
		return result;
	result.server = x11->connection();
	result.root = xcb_setup_roots_iterator(xcb_get_setup(result.server)).data->root;
	return result;
}


xcb_atom_t
atom(const Connection& connection, const char* name)
{
	xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection.server,
		xcb_intern_atom(connection.server, 0, strlen(name), name), nullptr);
	const xcb_atom_t result = reply == nullptr ? xcb_atom_t(XCB_ATOM_NONE) : reply->atom;
	free(reply);
	return result;
}


uint32
root_number(const char* property, uint32 otherwise)
{
	const Connection x11 = connection();
	if (x11.server == nullptr)
		return otherwise;
	xcb_get_property_reply_t* reply = xcb_get_property_reply(x11.server,
		xcb_get_property(x11.server, 0, x11.root, atom(x11, property), XCB_ATOM_CARDINAL, 0, 1),
		nullptr);
	uint32 number = otherwise;
	if (reply != nullptr && reply->format == 32 && xcb_get_property_value_length(reply) >= 4)
		memcpy(&number, xcb_get_property_value(reply), sizeof(number));
	free(reply);
	return number;
}


void
ask_window_manager(const Connection& x11, xcb_window_t window, const char* what, uint32 first,
	uint32 second)
{
	xcb_client_message_event_t event = {};
	event.response_type = XCB_CLIENT_MESSAGE;
	event.format = 32;
	event.window = window;
	event.type = atom(x11, what);
	event.data.data32[0] = first;
	event.data.data32[1] = second;
	xcb_send_event(x11.server, 0, x11.root,
		XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
		reinterpret_cast<const char*>(&event));
	xcb_flush(x11.server);
}

} // namespace


int32
CountWorkspaces()
{
	return root_number("_NET_NUMBER_OF_DESKTOPS", 1);
}


int32
CurrentWorkspace()
{
	return root_number("_NET_CURRENT_DESKTOP", 0);
}


void
ActivateWorkspace(int32 workspace)
{
	const Connection x11 = connection();
	if (x11.server == nullptr || workspace < 0 || workspace >= CountWorkspaces())
		return;
	ask_window_manager(x11, x11.root, "_NET_CURRENT_DESKTOP", workspace, XCB_CURRENT_TIME);
}


void
ShowOnAllWorkspaces(const QWidget& widget, bool onAll)
{
	const Connection x11 = connection();
	if (x11.server == nullptr || !widget.internalWinId())
		return;
	const xcb_window_t window = widget.internalWinId();
	const uint32 desktop = onAll ? kAllDesktops : CurrentWorkspace();
	// The property counts when the window appears, the request from then on.
	xcb_change_property(x11.server, XCB_PROP_MODE_REPLACE, window, atom(x11, "_NET_WM_DESKTOP"),
		XCB_ATOM_CARDINAL, 32, 1, &desktop);
	ask_window_manager(x11, window, "_NET_WM_DESKTOP", desktop, kSourceApplication);
}

} // namespace hosted
