#pragma once

#include "core/RuntimeError.h"
#include "data/types/Value.h"

#include <exception>

struct sqlite3_context;
struct sqlite3_value;

namespace jet {

/// What a bare number of the storage library stands for.
enum class Meaning { Plain, Date, Boolean, Currency };

Value valueOf(sqlite3_value* argument, Meaning meaning = Meaning::Plain);
void giveResult(sqlite3_context* context, const Value& value);
/// Ends the statement with the error text "jet:number:words", which the connection turns into a DatabaseError.
void giveError(sqlite3_context* context, long number, const char* words);

/// Runs `work` inside a function of the storage library, which no exception may leave.
template<typename Work>
void guarded(sqlite3_context* context, Work work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        giveError(context, error.number(), error.what());
    } catch (const std::exception& error) {
        giveError(context, 7, error.what());
    }
}

} // namespace jet
