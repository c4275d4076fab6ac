' A connection and a record set as ADODB's: they write down what is done to them and need no database.
' Looking at a state, at an end or at names of fields writes nothing.

Class ScriptedConnection
    Private lngNumber
    Private lngState
    Private objErrors

    Private Sub Class_Initialize
        Host.Connections = Host.Connections + 1
        lngNumber = Host.Connections
        lngState = 0
        Set objErrors = New ErrorList
    End Sub

    Private Sub Note(what)
        Host.Events.Add "#" & lngNumber & "." & what
    End Sub

    Public Property Get ShownName
        ShownName = "connection #" & lngNumber
    End Property

    Public Property Get Number
        Number = lngNumber
    End Property

    Public Property Let CursorLocation(location)
        Note "CursorLocation = " & location
    End Property

    Public Property Let ConnectionString(text)
        Note "ConnectionString = '" & text & "'"
    End Property

    Public Property Let ConnectionTimeout(seconds)
        Note "ConnectionTimeout = " & seconds
    End Property

    Public Property Let CommandTimeout(seconds)
        Note "CommandTimeout = " & seconds
    End Property

    Public Sub Open(text, user, password, options)
        If text <> "" Then Note "Open with another connection string: " & text
        Note "Open user='" & user & "' password='" & password & "' options=" & options
        If Host.FailAtOpen = lngNumber Then
            Err.Raise PlannedError, "provider", "the server of connection #" & lngNumber & " can't be reached"
        End If
        lngState = 1
    End Sub

    ' For a connection that the host hands out open.
    Public Sub OpenAtOnce
        Open "", "", "", -1
    End Sub

    Public Sub Close
        Note "Close"
        lngState = 0
    End Sub

    Public Property Get State
        State = lngState
    End Property

    Public Property Get Errors
        Set Errors = objErrors
    End Property

    Public Function Execute(statement, ByRef recordsAffected, options)
        Note "Execute [" & (Host.Sent.Count + 1) & "]"
        Send statement
        recordsAffected = -1
        Set Execute = Nothing
    End Function

    Public Sub Send(statement)
        Host.Send lngNumber, statement
        If lngState = 0 Then Err.Raise vbObjectError + 2, "provider", "the connection is closed"
    End Sub

    Public Sub Cancel
        Note "Cancel"
    End Sub
End Class

' The provider tells nothing beyond the error itself.
Class ErrorList
    Public Property Get Count
        Count = 0
    End Property
End Class

Class ScriptedRecordset
    Private lngNumber
    Private lngLocation
    Private lngState
    Private lngRow
    Private blnCounted
    Private objRows
    Private objFields

    Private Sub Class_Initialize
        lngState = 0
    End Sub

    Private Sub Note(what)
        Host.Events.Add "@" & lngNumber & "." & what
    End Sub

    Public Property Let CursorLocation(location)
        lngLocation = location
    End Property

    Public Sub Open(statement, connection, cursorType, lockType, options)
        Host.Recordsets = Host.Recordsets + 1
        lngNumber = Host.Recordsets
        Host.Events.Add "#" & connection.Number & ".OpenRecordset @" & lngNumber & " location=" & lngLocation & _
            " type=" & cursorType & " lock=" & lockType & " [" & (Host.Sent.Count + 1) & "]"
        connection.Send statement
        Set objRows = Host.Scenario.RowsFor(statement)
        Set objFields = New FieldList
        objFields.Bind Me, objRows.Columns
        blnCounted = (cursorType <> 0)
        lngRow = 1
        lngState = 1
    End Sub

    Public Property Get EOF
        EOF = lngRow > objRows.Cells.Count
    End Property

    Public Sub MoveNext
        Note "MoveNext"
        lngRow = lngRow + 1
    End Sub

    Public Sub MoveFirst
        Note "MoveFirst"
        lngRow = 1
    End Sub

    Public Property Get RecordCount
        Note "RecordCount"
        RecordCount = -1
        If blnCounted Then RecordCount = objRows.Cells.Count
    End Property

    Public Property Get Fields
        Set Fields = objFields
    End Property

    ' The content of a field of the row, by its position from 0.
    Public Function Cell(position, name)
        Dim cells
        Note "Field " & name
        cells = objRows.Cells.Item(lngRow)
        Cell = cells(position + 1)
    End Function

    Public Property Get State
        State = lngState
    End Property

    Public Sub Close
        Note "Close"
        lngState = 0
    End Sub

    Public Function NextRecordset(ByRef recordsAffected)
        Set NextRecordset = Nothing
    End Function
End Class

Class FieldList
    Private objRecordset
    Private lstColumns

    Public Sub Bind(recordset, columns)
        Set objRecordset = recordset
        lstColumns = columns
    End Sub

    Public Property Get Count
        Count = UBound(lstColumns)
    End Property

    Public Default Property Get Item(position)
        Set Item = New ScriptedField
        Item.Bind objRecordset, position, lstColumns(position + 1)
    End Property
End Class

' All fields are nvarchar(max).
Class ScriptedField
    Private objRecordset
    Private lngPosition
    Private strName

    Public Sub Bind(recordset, position, name)
        Set objRecordset = recordset
        lngPosition = position
        strName = name
    End Sub

    Public Property Get Name
        Name = strName
    End Property

    Public Property Get Type
        Type = 203
    End Property

    Public Property Get Precision
        Precision = 255
    End Property

    Public Property Get NumericScale
        NumericScale = 255
    End Property

    Public Property Get DefinedSize
        DefinedSize = 1073741823
    End Property

    Public Property Get Value
        Dim shown
        shown = strName
        If shown = "" Then shown = lngPosition
        Value = objRecordset.Cell(lngPosition, shown)
    End Property
End Class
