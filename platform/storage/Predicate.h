// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PREDICATE_H
#define PREDICATE_H

#include <Query.h>
#include <SupportDefs.h>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>


namespace hosted {

// What a file answers for an attribute: its type and value, or false.
using AttributeReader
	= std::function<bool(const std::string& attribute, type_code* type, std::string* value)>;


/*!	A query's condition, as a tree.

	Texts are patterns if they are compared for being (un)equal: "*", "?" and "[set]", and a
	backslash takes a character as it is. A file that lacks the attribute fulfills no comparison.
*/
struct Predicate {
	query_op operation = B_INVALID_OP;
	// For a comparison.
	std::string attribute;
	std::string value;
	// For B_AND, B_OR and B_NOT.
	std::unique_ptr<Predicate> left;
	std::unique_ptr<Predicate> right;

	bool Matches(const AttributeReader& read) const;
};

// Null if the text is no predicate.
std::unique_ptr<Predicate> ParsePredicate(std::string_view text);

bool MatchesPattern(const char* text, const char* pattern);

} // namespace hosted

#endif // PREDICATE_H
