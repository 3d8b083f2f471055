#pragma once

/// Brings gdbProject to the present project layout: from the template CSProject.bak of the delivered files,
/// TblProjectInfo is copied where the project has none, and its missing columns are added where it has one. Failures
/// are logged; a template that cannot be read is shown to the user.
void UpgradeProjectSchema();
