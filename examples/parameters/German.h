// The program in German: what a translator delivers with it.
#pragma once

// Loads the German texts and error messages for the calling thread.
void SpeakGerman();
