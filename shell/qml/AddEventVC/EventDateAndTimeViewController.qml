import Tessivo

// The day, the time, the repeat and the unit of a new event.
DateAndTimeFrame {}
