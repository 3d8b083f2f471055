#pragma once

/// Bring the groups of the project's account from the master copies in CustomerGroups.mdb to where they are used; run
/// in this order when a project is opened. Errors are logged; a copy that fails leaves the rows that were there. Main
/// thread.

/// Sets gsAccount, and replaces the project's TblGroups by the master's rows of the account. Without such rows the
/// project keeps its own.
void FrmMain_TransfergroupstoProject();

/// Replaces the shapes and label points of ukmap.mdb by the account's, makes tables that CustomerGroups.mdb lacks, and
/// leaves the link tblMappingGroupSetup_Link behind.
void FrmMain_TransferGroupsToMap();
