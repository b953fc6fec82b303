# Completion for PowerShell. The program itself knows what may stand where: calvix complete.
# Have your profile run it: calvix completion powershell | Out-String | Invoke-Expression

Register-ArgumentCompleter -Native -CommandName calvix, calvix.exe -ScriptBlock {
    param($wordToComplete, $commandAst, $cursorPosition)
    $words = @($commandAst.CommandElements |
        Where-Object { $_.Extent.EndOffset -lt $cursorPosition -or ($wordToComplete -eq '' -and $_.Extent.EndOffset -le $cursorPosition) } |
        ForEach-Object { if ($null -ne $_.Value) { [string]$_.Value } else { $_.Extent.Text } })
    $current = $wordToComplete.Trim('"', "'")
    $arguments = @('complete')
    if ($current -ne '') { $arguments += "--current=$current" }
    $arguments += '--'
    if ($words.Count -gt 1) { $arguments += $words[1..($words.Count - 1)] }
    # Where nothing is returned, PowerShell offers files by itself.
    & $words[0] @arguments 2>$null | Select-Object -Skip 1 | ForEach-Object {
        $text, $meaning = $_ -split "`t", 2
        if (-not $meaning) { $meaning = $text }
        $quoted = if ($text -match '[\s''"`$&|;(){}<>@#]') { "'" + $text.Replace("'", "''") + "'" } else { $text }
        [System.Management.Automation.CompletionResult]::new($quoted, $text, 'ParameterValue', $meaning)
    }
}
