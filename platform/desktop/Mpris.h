// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MPRIS_H
#define MPRIS_H

#include <string>


namespace hosted {

/*!	A player's remote control on the session bus.

	Calls wait for the player's answer, two seconds at most, and tell whether it did as asked.
*/
class Mpris {
public:
	explicit Mpris(const std::string& busName);

	// False also where the player says that it cannot be quit this way.
	bool Quit();
	bool Raise();
	bool Play();
	bool Pause();
	bool Next();
	bool Previous();
	bool GetIsPlaying(bool* isPlaying);
	// 1 is the player's full volume without amplification.
	bool GetVolume(double* volume);
	bool SetVolume(double volume);

private:
	bool _Call(const char* interface, const char* method);
	bool _CanQuit();

private:
	std::string fBusName;
};

} // namespace hosted

#endif // MPRIS_H
