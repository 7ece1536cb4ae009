#pragma once

namespace quorvane {

/// Tells assistive technology what the program's own kinds of controls are: pictures, and things to
/// press. The toolkit knows only its own kinds and takes all others for empty space.
void InstallAccessibleRoles();

}  // namespace quorvane
