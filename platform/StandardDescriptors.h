// Standard input, output and error of a program that was started without some of them.
#pragma once

/// Opens those that are closed, so that no file that is opened later gets their numbers. Reading
/// from them then gives the end of a file, and writing to them fails.
void openStandardDescriptors() noexcept;
