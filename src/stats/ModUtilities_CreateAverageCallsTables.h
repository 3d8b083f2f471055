#pragma once

/// Writes AverageCalls1, the calls of an area for each of its callers, into the tables of TV regions and postcode
/// districts: those of the selection where FilterActive is set, else those of the whole project. Areas without calls
/// have 0. Reads the calls through the links of the system map database. Errors are logged and passed over.
void ModUtilities_CreateAverageCallsTables();
