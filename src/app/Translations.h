#pragma once

/// Makes the program, and what it takes from the toolkit, speak the language of the user's session; English
/// where there is no translation. To be called once, when the application object is there and before the
/// first sentence.
void installTranslations();
