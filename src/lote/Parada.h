// The stop button of the batch front end: the first SIGINT asks the running work to stop, a second
// one ends the program.
#pragma once

/// Takes SIGINT over and ignores SIGPIPE, so that a closed pipe is an ordinary write error.
void PrepararSenales();

/// Whether a stop has been asked for.
bool ParadaPedida();
