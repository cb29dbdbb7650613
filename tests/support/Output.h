// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef OUTPUT_H
#define OUTPUT_H

#include <functional>
#include <string>


namespace test {

// What the process writes to standard output while the function runs.
std::string OutputOf(const std::function<void()>& function);
// The same of standard error.
std::string ErrorsOf(const std::function<void()>& function);

} // namespace test

#endif // OUTPUT_H
