#pragma once

#include "stats/FigureSource.h"

#include <string>
#include <string_view>

/// The rows of the working tables as queries over the calls of a project. `area` is a column of TblMappingGIS; `into`
/// is " INTO table" for a statement that makes one, or empty.

/// CalledNo, AnswerInd, Discounted and the area of the selected calls.
std::string selectedCallsQuery(const std::string& area, const CallSelection& selection, std::string_view into = {});

/// The distinct pairs of caller and area with an answered call, or with one that was not, inside the selection; `where`
/// follows an AND. Lost callers are not yet rid of those who were answered at another time.
std::string callersQuery(CallerKind kind, const std::string& area, const std::string& where,
                         std::string_view into = {});

/// A condition by which a caller was answered at no time.
std::string neverAnswered();

/// Lost callers as they are at the end: those who were answered at no time.
std::string neverAnsweredQuery(const std::string& area, const std::string& where);
