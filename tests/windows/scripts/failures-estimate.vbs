' The estimate balance ends quietly whichever of its statements fails, but for the first.
' scenario: estimate-balance/arrival-difference
ProvideAll
ScenarioOfRuns = "scenario.txt"
ExpectFailuresOfStatements "clsLastRep", 2
Report.Finish
