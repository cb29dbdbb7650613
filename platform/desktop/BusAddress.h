// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BUS_ADDRESS_H
#define BUS_ADDRESS_H

#include <string>


namespace hosted {

// The address of the user's session bus, empty if there is none. The bus's own library would rather
// start a bus that nobody else is on.
std::string SessionBusAddress();

/*!	Whether anybody answers at an address, within three seconds.

	The bus's own library would wait much longer for one that hangs. Kinds of addresses that are not
	sockets of this machine are taken to answer.
*/
bool IsBusAnswering(const std::string& address);

} // namespace hosted

#endif // BUS_ADDRESS_H
