import Tessivo

// The background of a new event.
BackgroundFrame {}
