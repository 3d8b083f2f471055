#pragma once

enum class GroupDefinition { Refused = 1, NothingLeft = 2 };

/// Where it is not known of which areas the groups of the account are made: finds out from the project's groups, and
/// deletes them in all copies, after a question where they are made of areas that the map cannot group. Errors of the
/// deletion are ignored, others logged. Main thread.
GroupDefinition ModUtilities_DetermineProbableGroupDefinition();
