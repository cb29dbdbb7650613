// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Query.h>

#include <Entry.h>
#include <FindDirectory.h>
#include <Node.h>
#include <Path.h>
#include <Volume.h>
#include <VolumeRoster.h>
#include <string.h>
#include <vector>

#include "platform/storage/QueryWalk.h"


struct BQuery::Private {
	// A condition that is being built. An operand is a name or a value, the rest is in brackets.
	struct Item {
		std::string text;
		bool isOperand;
		// A text's characters that may stand for others, for the operators that add their own.
		bool isText = false;
	};

	std::vector<Item> stack;
	bool isStackBad = false;
	std::string expression;
	dev_t device = static_cast<dev_t>(-1);
	bool hasVolume = false;
	bool isFetched = false;
	std::unique_ptr<hosted::Predicate> predicate;
	std::unique_ptr<hosted::QueryWalk> walk;

	bool Pop(Item* item);
	void PushOperand(const std::string& text, bool isText);
	void PushOperator(query_op operation);
	std::string Text() const;
};


namespace {

std::string
quoted(const std::string& text)
{
	std::string result = "\"";
	for (const char c : text) {
		if (c == '"')
			result += '\\';
		result += c;
	}
	return result + "\"";
}


// A pattern that takes either case of every letter.
std::string
case_blind(const std::string& text)
{
	std::string result;
	for (const char c : text) {
		const bool isUpper = c >= 'A' && c <= 'Z';
		const bool isLower = c >= 'a' && c <= 'z';
		if (isUpper || isLower) {
			const char lower = isUpper ? static_cast<char>(c - 'A' + 'a') : c;
			const char upper = isLower ? static_cast<char>(c - 'a' + 'A') : c;
			result += std::string("[") + lower + upper + "]";
		} else
			result += c;
	}
	return result;
}


const char*
sign_of(query_op operation)
{
	switch (operation) {
		case B_EQ:
		case B_CONTAINS:
		case B_BEGINS_WITH:
		case B_ENDS_WITH:
			return "==";
		case B_GT:
			return ">";
		case B_GE:
			return ">=";
		case B_LT:
			return "<";
		case B_LE:
			return "<=";
		case B_NE:
			return "!=";
		case B_AND:
			return "&&";
		case B_OR:
			return "||";
		default:
			return nullptr;
	}
}

} // namespace


bool
BQuery::Private::Pop(Item* item)
{
	if (stack.empty()) {
		isStackBad = true;
		return false;
	}
	*item = stack.back();
	stack.pop_back();
	return true;
}


void
BQuery::Private::PushOperand(const std::string& text, bool isText)
{
	stack.push_back({text, true, isText});
}


void
BQuery::Private::PushOperator(query_op operation)
{
	Item right;
	Item left;
	if (operation == B_NOT) {
		if (Pop(&right))
			stack.push_back({"(!" + right.text + ")", false});
		isStackBad = isStackBad || right.isOperand;
		return;
	}
	const char* sign = sign_of(operation);
	if (sign == nullptr || !Pop(&right) || !Pop(&left)) {
		isStackBad = true;
		return;
	}
	const bool joins = operation == B_AND || operation == B_OR;
	isStackBad = isStackBad || joins == left.isOperand || joins == right.isOperand;
	if (operation == B_CONTAINS || operation == B_ENDS_WITH)
		right.text = "*" + right.text;
	if (operation == B_CONTAINS || operation == B_BEGINS_WITH)
		right.text += "*";
	const std::string value = right.isText ? quoted(right.text) : right.text;
	stack.push_back({"(" + left.text + sign + value + ")", false});
}


// The condition as it stands, or an empty text if there is none, or none that can be asked.
std::string
BQuery::Private::Text() const
{
	if (!expression.empty())
		return expression;
	const bool isWhole = !isStackBad && stack.size() == 1 && !stack[0].isOperand;
	return isWhole ? stack[0].text : std::string();
}


BQuery::BQuery()
	:
	fPrivate(new Private)
{
}


BQuery::~BQuery() = default;


status_t
BQuery::Clear()
{
	*fPrivate = Private();
	return B_OK;
}


void
BQuery::PushAttr(const char* attribute)
{
	if (attribute != nullptr)
		fPrivate->PushOperand(attribute, false);
}


void
BQuery::PushOp(query_op operation)
{
	fPrivate->PushOperator(operation);
}


void
BQuery::PushUInt32(uint32 value)
{
	fPrivate->PushOperand(std::to_string(value), false);
}


void
BQuery::PushInt32(int32 value)
{
	fPrivate->PushOperand(std::to_string(value), false);
}


void
BQuery::PushUInt64(uint64 value)
{
	fPrivate->PushOperand(std::to_string(value), false);
}


void
BQuery::PushInt64(int64 value)
{
	fPrivate->PushOperand(std::to_string(value), false);
}


void
BQuery::PushString(const char* value, bool ignoreCase)
{
	if (value != nullptr)
		fPrivate->PushOperand(ignoreCase ? case_blind(value) : value, true);
}


status_t
BQuery::SetVolume(const BVolume* volume)
{
	if (volume == nullptr)
		return B_BAD_VALUE;
	if (fPrivate->isFetched)
		return B_NOT_ALLOWED;
	fPrivate->hasVolume = volume->InitCheck() == B_OK;
	fPrivate->device = volume->Device();
	return fPrivate->hasVolume ? B_OK : B_BAD_VALUE;
}


status_t
BQuery::SetPredicate(const char* expression)
{
	if (expression == nullptr)
		return B_BAD_VALUE;
	if (fPrivate->isFetched)
		return B_NOT_ALLOWED;
	fPrivate->stack.clear();
	fPrivate->isStackBad = false;
	fPrivate->expression = expression;
	return B_OK;
}


status_t
BQuery::GetPredicate(char* buffer, size_t length)
{
	if (buffer == nullptr)
		return B_BAD_VALUE;
	const std::string text = fPrivate->Text();
	if (text.empty())
		return B_NO_INIT;
	if (text.size() >= length)
		return B_BAD_VALUE;
	strcpy(buffer, text.c_str());
	return B_OK;
}


// With its terminating zero; 0 if there is none.
size_t
BQuery::PredicateLength()
{
	const std::string text = fPrivate->Text();
	return text.empty() ? 0 : text.size() + 1;
}


dev_t
BQuery::TargetDevice() const
{
	return fPrivate->device;
}


status_t
BQuery::Fetch()
{
	if (fPrivate->isFetched)
		return B_NOT_ALLOWED;
	const bool isBroken = fPrivate->expression.empty() && fPrivate->isStackBad;
	const std::string text = fPrivate->Text();
	if (!fPrivate->hasVolume || (text.empty() && !isBroken))
		return B_NO_INIT;
	fPrivate->predicate = hosted::ParsePredicate(text);
	if (fPrivate->predicate == nullptr)
		return B_BAD_VALUE;

	BVolume boot;
	BVolumeRoster().GetBootVolume(&boot);
	BPath home;
	BNode homeNode;
	struct stat status;
	const bool hasHome = find_directory(B_USER_DIRECTORY, &home) == B_OK
		&& homeNode.SetTo(home.Path()) == B_OK && homeNode.GetStat(&status) == B_OK;
	const bool isHomeMeant
		= hasHome && (status.st_dev == fPrivate->device || boot.Device() == fPrivate->device);

	BDirectory root;
	BPath start;
	if (isHomeMeant)
		start = home;
	else if (BVolume(fPrivate->device).GetRootDirectory(&root) == B_OK)
		start.SetTo(&root, nullptr);
	if (start.InitCheck() != B_OK)
		return start.InitCheck();
	fPrivate->walk = std::make_unique<hosted::QueryWalk>(start.Path());
	fPrivate->isFetched = true;
	return B_OK;
}


status_t
BQuery::GetNextEntry(BEntry* entry, bool traverse)
{
	if (entry == nullptr)
		return B_BAD_VALUE;
	entry_ref ref;
	const status_t status = GetNextRef(&ref);
	if (status != B_OK) {
		entry->Unset();
		return status;
	}
	return entry->SetTo(&ref, traverse);
}


status_t
BQuery::GetNextRef(entry_ref* ref)
{
	if (ref == nullptr)
		return B_BAD_VALUE;
	if (!fPrivate->isFetched)
		return B_FILE_ERROR;
	return fPrivate->walk->Next(*fPrivate->predicate, ref);
}


// A query goes forward only.
status_t
BQuery::Rewind()
{
	return B_ERROR;
}


int32
BQuery::CountEntries()
{
	return B_ERROR;
}
