#pragma once

/// Ties the open project to the system map database: brings the project's geography up to date, attaches TblGIS_Link
/// and TblTeleItem_Link to the project and TblGroup_Link to the customer groups, and gives the project the exchange
/// names of the system's lookup. Returns 0, or -1 on failure (logged).
int ModUtilities_CreateLinkTables();
