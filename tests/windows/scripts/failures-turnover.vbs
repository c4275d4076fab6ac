' The turnover lets every error of a statement through.
' scenario: turnover/usual
ProvideAll
ScenarioOfRuns = "scenario.txt"
ExpectFailuresOfStatements "clsCinTurnRep", 0
Report.Finish
