#pragma once

/// Tables that an older Callscope has not made in CustomerGroups.mdb. Both throw DatabaseError. Main thread.

/// PGN_GROUPS and PNT_GROUPS: the master copies of the groups' shapes and label points.
void FrmMain_CreateCustomerGroupDBPolygonTables();

/// tblMappingGroupSetup. Groups that are older than the table count as changed by Callscope.
void FrmMain_CreateMappingGroupSetupTable();
