// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Mpris.h"

#include <QDBusVariant>

#include "platform/desktop/SessionBus.h"


namespace hosted {

namespace {

constexpr char kPath[] = "/org/mpris/MediaPlayer2";
constexpr char kRoot[] = "org.mpris.MediaPlayer2";
constexpr char kPlayer[] = "org.mpris.MediaPlayer2.Player";
constexpr char kProperties[] = "org.freedesktop.DBus.Properties";


bool
get_property(const std::string& busName, const char* interface, const char* property,
	QVariant* value)
{
	const QDBusMessage answer = SessionBus::Call(busName, kPath, kProperties, "Get",
		{QLatin1String(interface), QLatin1String(property)});
	if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("v"))
		return false;
	*value = answer.arguments().constFirst().value<QDBusVariant>().variant();
	return true;
}

} // namespace


Mpris::Mpris(const std::string& busName)
	:
	fBusName(busName)
{
}


bool
Mpris::Quit()
{
	return _CanQuit() && _Call(kRoot, "Quit");
}


bool
Mpris::Raise()
{
	return _Call(kRoot, "Raise");
}


bool
Mpris::Play()
{
	return _Call(kPlayer, "Play");
}


bool
Mpris::Pause()
{
	return _Call(kPlayer, "Pause");
}


bool
Mpris::Next()
{
	return _Call(kPlayer, "Next");
}


bool
Mpris::Previous()
{
	return _Call(kPlayer, "Previous");
}


bool
Mpris::GetIsPlaying(bool* isPlaying)
{
	QVariant value;
	if (!get_property(fBusName, kPlayer, "PlaybackStatus", &value)
		|| value.typeId() != QMetaType::QString)
		return false;
	*isPlaying = value.toString() == QLatin1String("Playing");
	return true;
}


bool
Mpris::GetVolume(double* volume)
{
	QVariant value;
	if (!get_property(fBusName, kPlayer, "Volume", &value) || value.typeId() != QMetaType::Double)
		return false;
	*volume = value.toDouble();
	return true;
}


bool
Mpris::SetVolume(double volume)
{
	const QDBusMessage answer = SessionBus::Call(fBusName, kPath, kProperties, "Set",
		{QLatin1String(kPlayer), QLatin1String("Volume"),
			QVariant::fromValue(QDBusVariant(volume))});
	return answer.type() == QDBusMessage::ReplyMessage;
}


bool
Mpris::_Call(const char* interface, const char* method)
{
	return SessionBus::Call(fBusName, kPath, interface, method).type()
		== QDBusMessage::ReplyMessage;
}


bool
Mpris::_CanQuit()
{
	QVariant value;
	// A player that does not say is asked all the same.
	return !get_property(fBusName, kRoot, "CanQuit", &value) || value.toBool();
}

} // namespace hosted
