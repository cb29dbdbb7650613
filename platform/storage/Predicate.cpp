// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/Predicate.h"

#include <TypeConstants.h>
#include <errno.h>
#include <stdlib.h>
#include <string.h>


namespace hosted {

namespace {

// How deep brackets may be nested.
constexpr int kMaxDepth = 200;


class Parser {
public:
	explicit Parser(std::string_view text)
		:
		fRest(text)
	{
	}

	std::unique_ptr<Predicate> Parse()
	{
		std::unique_ptr<Predicate> predicate = _Either();
		_SkipBlanks();
		return fRest.empty() ? std::move(predicate) : nullptr;
	}

private:
	std::unique_ptr<Predicate> _Either();
	std::unique_ptr<Predicate> _Both();
	std::unique_ptr<Predicate> _Single();
	std::unique_ptr<Predicate> _Comparison();
	query_op _Operator();
	bool _Text(std::string* text, bool isPattern);
	bool _Quoted(std::string* text, bool isPattern, char quote);

	void _SkipBlanks()
	{
		while (!fRest.empty() && strchr(" \t\r\n", fRest[0]) != nullptr)
			fRest.remove_prefix(1);
	}
	bool _Take(std::string_view token)
	{
		_SkipBlanks();
		if (fRest.substr(0, token.size()) != token)
			return false;
		fRest.remove_prefix(token.size());
		return true;
	}

private:
	std::string_view fRest;
	int fDepth = 0;
};


std::unique_ptr<Predicate>
joined(query_op operation, std::unique_ptr<Predicate> left, std::unique_ptr<Predicate> right)
{
	auto predicate = std::make_unique<Predicate>();
	predicate->operation = operation;
	predicate->left = std::move(left);
	predicate->right = std::move(right);
	return predicate;
}


std::unique_ptr<Predicate>
Parser::_Either()
{
	std::unique_ptr<Predicate> left = _Both();
	while (left != nullptr && _Take("||")) {
		std::unique_ptr<Predicate> right = _Both();
		if (right == nullptr)
			return nullptr;
		left = joined(B_OR, std::move(left), std::move(right));
	}
	return left;
}


std::unique_ptr<Predicate>
Parser::_Both()
{
	std::unique_ptr<Predicate> left = _Single();
	while (left != nullptr && _Take("&&")) {
		std::unique_ptr<Predicate> right = _Single();
		if (right == nullptr)
			return nullptr;
		left = joined(B_AND, std::move(left), std::move(right));
	}
	return left;
}


std::unique_ptr<Predicate>
Parser::_Single()
{
	_SkipBlanks();
	if (fRest.empty() || ++fDepth > kMaxDepth)
		return nullptr;
	std::unique_ptr<Predicate> predicate;
	if (_Take("(")) {
		predicate = _Either();
		if (!_Take(")"))
			predicate = nullptr;
	} else if (_Take("!")) {
		predicate = _Single();
		if (predicate != nullptr)
			predicate = joined(B_NOT, std::move(predicate), nullptr);
	} else
		predicate = _Comparison();
	fDepth--;
	return predicate;
}


std::unique_ptr<Predicate>
Parser::_Comparison()
{
	auto predicate = std::make_unique<Predicate>();
	if (!_Text(&predicate->attribute, false) || predicate->attribute.empty())
		return nullptr;
	predicate->operation = _Operator();
	if (predicate->operation == B_INVALID_OP || !_Text(&predicate->value, true))
		return nullptr;
	return predicate;
}


query_op
Parser::_Operator()
{
	const std::pair<std::string_view, query_op> kOperators[] = {
		{"==", B_EQ},
		{"!=", B_NE},
		{"<=", B_LE},
		{">=", B_GE},
		{"<", B_LT},
		{">", B_GT},
		{"=", B_EQ},
	};
	for (const auto& [token, operation] : kOperators) {
		if (_Take(token))
			return operation;
	}
	return B_INVALID_OP;
}


// A name or a value, in quotes or as far as no operator comes. A backslash stays before its
// character in a pattern.
bool
Parser::_Text(std::string* text, bool isPattern)
{
	_SkipBlanks();
	if (fRest.empty())
		return false;
	const char first = fRest[0];
	if (first == '"' || first == '\'') {
		fRest.remove_prefix(1);
		return _Quoted(text, isPattern, first);
	}
	while (!fRest.empty() && strchr(" \t\r\n()=!<>&|\"'", fRest[0]) == nullptr) {
		*text += fRest[0];
		fRest.remove_prefix(1);
	}
	return !text->empty();
}


bool
Parser::_Quoted(std::string* text, bool isPattern, char quote)
{
	while (!fRest.empty()) {
		const char c = fRest[0];
		fRest.remove_prefix(1);
		if (c == quote)
			return true;
		if (c == '\\' && !fRest.empty()) {
			if (isPattern)
				*text += c;
			*text += fRest[0];
			fRest.remove_prefix(1);
		} else
			*text += c;
	}
	return false;
}


// Compares a "[set]" with one character. pattern is behind the bracket, and behind the closing one
// afterwards; null if there is no closing one.
bool
matches_set(char c, const char** pattern)
{
	const char* set = *pattern;
	const bool isInverted = *set == '^' || *set == '!';
	if (isInverted)
		set++;
	bool found = false;
	const char* const begin = set;
	for (; *set != '\0' && (*set != ']' || set == begin); set++) {
		if (set[1] == '-' && set[2] != ']' && set[2] != '\0') {
			found = found || (c >= set[0] && c <= set[2]);
			set += 2;
		} else
			found = found || c == *set;
	}
	*pattern = *set == ']' ? set + 1 : nullptr;
	return found != isInverted;
}


// Compares what one element of a pattern stands for, other than "*", with one character.
bool
matches_one(char c, const char** pattern)
{
	const char element = *(*pattern)++;
	if (element == '?')
		return true;
	if (element == '[')
		return matches_set(c, pattern);
	if (element == '\\' && **pattern != '\0')
		return c == *(*pattern)++;
	return c == element;
}


std::string
without_backslashes(const std::string& text)
{
	std::string result;
	for (size_t index = 0; index < text.size(); index++) {
		if (text[index] == '\\' && index + 1 < text.size())
			index++;
		result += text[index];
	}
	return result;
}


template <typename Value>
bool
compares(query_op operation, const Value& a, const Value& b)
{
	switch (operation) {
		case B_EQ:
			return a == b;
		case B_NE:
			return a != b;
		case B_LT:
			return a < b;
		case B_LE:
			return a <= b;
		case B_GT:
			return a > b;
		case B_GE:
			return a >= b;
		default:
			return false;
	}
}


template <typename Stored>
bool
compare_integer(query_op operation, const std::string& stored, const std::string& text)
{
	Stored value;
	if (stored.size() < sizeof(value))
		return false;
	memcpy(&value, stored.data(), sizeof(value));
	char* end;
	errno = 0;
	const long long number = strtoll(text.c_str(), &end, 0);
	return errno == 0 && end != text.c_str() && *end == '\0'
		&& compares(operation, static_cast<long long>(value), number);
}


template <typename Stored>
bool
compare_real(query_op operation, const std::string& stored, const std::string& text)
{
	Stored value;
	if (stored.size() < sizeof(value))
		return false;
	memcpy(&value, stored.data(), sizeof(value));
	char* end;
	const double number = strtod(text.c_str(), &end);
	return end != text.c_str() && *end == '\0'
		&& compares(operation, static_cast<double>(value), number);
}


bool
compare_text(query_op operation, const std::string& stored, const std::string& pattern)
{
	const std::string text = stored.c_str();
	if (operation == B_EQ || operation == B_NE)
		return MatchesPattern(text.c_str(), pattern.c_str()) == (operation == B_EQ);
	return compares(operation, text, without_backslashes(pattern));
}

} // namespace


bool
MatchesPattern(const char* text, const char* pattern)
{
	// Where to take up again after the last "*", with one character more for it.
	const char* textAfterStar = nullptr;
	const char* patternAfterStar = nullptr;
	while (true) {
		if (*pattern == '*') {
			patternAfterStar = ++pattern;
			textAfterStar = text;
			continue;
		}
		if (*text == '\0' && *pattern == '\0')
			return true;
		if (*text != '\0' && *pattern != '\0' && matches_one(*text, &pattern)) {
			if (pattern == nullptr)
				return false;
			text++;
			continue;
		}
		if (textAfterStar == nullptr || *textAfterStar == '\0')
			return false;
		text = ++textAfterStar;
		pattern = patternAfterStar;
	}
}


bool
Predicate::Matches(const AttributeReader& read) const
{
	switch (operation) {
		case B_AND:
			return left->Matches(read) && right->Matches(read);
		case B_OR:
			return left->Matches(read) || right->Matches(read);
		case B_NOT:
			return !left->Matches(read);
		default:
			break;
	}

	type_code type;
	std::string stored;
	if (!read(attribute, &type, &stored))
		return false;
	switch (type) {
		case B_INT8_TYPE:
			return compare_integer<int8>(operation, stored, value);
		case B_BOOL_TYPE:
		case B_UINT8_TYPE:
			return compare_integer<uint8>(operation, stored, value);
		case B_INT16_TYPE:
			return compare_integer<int16>(operation, stored, value);
		case B_UINT16_TYPE:
			return compare_integer<uint16>(operation, stored, value);
		case B_INT32_TYPE:
			return compare_integer<int32>(operation, stored, value);
		case B_UINT32_TYPE:
			return compare_integer<uint32>(operation, stored, value);
		case B_INT64_TYPE:
		case B_UINT64_TYPE:
		case B_OFF_T_TYPE:
		case B_TIME_TYPE:
			return compare_integer<int64>(operation, stored, value);
		case B_FLOAT_TYPE:
			return compare_real<float>(operation, stored, value);
		case B_DOUBLE_TYPE:
			return compare_real<double>(operation, stored, value);
		default:
			return compare_text(operation, stored, value);
	}
}


std::unique_ptr<Predicate>
ParsePredicate(std::string_view text)
{
	return Parser(text).Parse();
}

} // namespace hosted
