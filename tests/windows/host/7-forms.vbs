' Shows the library's forms as a user who types and clicks: what is to be done stands in Host.FormActions, a line for
' each: "Edit2=60" types, "Command1" clicks.
Class ScriptedForms
    Public Sub ShowModal(form)
        Dim action, parts, i, isOpen
        Host.Events.Add "FormHost.ShowModal " & form.Title
        isOpen = True
        For Each action In Split(Host.FormActions, "|")
            parts = Split(action, "=")
            If UBound(parts) = 0 Then
                If isOpen And action <> "" Then isOpen = Not form.Click(action)
            Else
                For i = 1 To form.FieldCount
                    If form.FieldName(i) = parts(0) Then form.SetFieldText i, parts(1)
                Next
            End If
        Next
        Host.Events.Add "form is " & PlainText(isOpen)
        Host.FormText = TextOf(form)
        form.Unload
    End Sub

    ' The boxes and buttons of a form.
    Private Function TextOf(form)
        Dim i
        TextOf = ""
        For i = 1 To form.FieldCount
            TextOf = TextOf & form.FieldName(i) & "=" & form.FieldText(i)
            If form.FieldForInput(i) Then TextOf = TextOf & "*"
            TextOf = TextOf & " "
        Next
        For i = 1 To form.CommandCount
            TextOf = TextOf & form.CommandName(i) & " " & form.CommandCaption(i) & " "
        Next
    End Function

    Public Sub ShowMessage(text, icon, title)
        Host.Events.Add "FormHost.ShowMessage " & text & ", " & icon & ", " & title
    End Sub
End Class
