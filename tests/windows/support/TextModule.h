// Makes the companion resource module (the Italian one of the build) findable by its bare name, or not.
#pragma once

// TavrinRes.dll can be loaded from now on.
void OfferTextModule();

// TavrinRes.dll is unloaded, however often it was loaded, and cannot be found. Handles to it are void.
void TakeTextModuleAway();
