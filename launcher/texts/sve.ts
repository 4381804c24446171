<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Välkommen till installationsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Starta [ProductName] nu</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alla filer är uppdaterade.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Bearbetar...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installationsguiden är redo att påbörja installationen.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Anslutningsläge</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Den lokala databasen är skadad. Koppla från servern och anslut sedan igen för att återskapa databasen. Mer information finns i ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Stäng programmen och starta dem igen efteråt</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Mappen är en monteringspunkt. Välj en mapp som inte är en monteringspunkt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Redo att ta bort [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Servern har bytts ut. Klicka här för att ansluta igen.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Filer som synkroniseras just nu: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ändra, reparera eller ta bort [ProductName]. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Uteslutningslista</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Vill du ta bort delningslänken?\nPersoner som har länken kan då inte längre öppna filen.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere på den här datorn är för gammalt för att fungera med servern.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installationsprogram för [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inloggningen misslyckades</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Serverns certifikat är inte betrott: det kan ha upphört att gälla, tillhöra en annan server eller komma från en okänd utfärdare. Andra kan eventuellt läsa de data som du skickar. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Om Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Kontrollera inställningarna nedan och klicka sedan på Klar.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Skriv ut</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Installationsguiden är redo att påbörja borttagningen.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Den här datorn är redan ansluten till den här servern. Redigera den befintliga anslutningen eller ange en annan server.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Hämtningshistorik</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Anslutningen till servern bröts. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Serverns certifikat kunde inte verifieras.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Använd en svartvit ikon i systemfältet</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Filerna i den här mappen kommer att synkroniseras med servern.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxyservern kräver inloggning</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Uteslutna filer</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Behörighet saknas</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere på servern är för gammalt för att fungera med den här datorn. Be serveradministratören att uppgradera Quillmere.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Du kan köra installationsprogrammet igen när som helst. Klicka på Slutför för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Anslutningen till servern är instabil.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>En nyare version av Quillmere är redan installerad. Ta bort den nyare versionen först om du vill installera den här.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klicka på Reparera för att reparera installationen av [ProductName]. Klicka på Tillbaka för att granska dina val eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Vissa inställningar har inte sparats. Vill du spara dem?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Ikonöverlägg på filer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Mappen används redan av ett annat synkroniseringsprogram. Välj en annan mapp för att undvika konflikter.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatibel version</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Byt synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Ange ett fullständigt filnamn utan mappsökväg, till exempel thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Installationsprogrammet stoppades av ett fel. Ändringarna som det hade gjort har ångrats.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerar [ProductName] på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Använd en krypterad anslutning (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Vissa filer som behöver uppdateras används just nu.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>En ny version av Quillmere är tillgänglig. Klicka här för att uppgradera.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Hämtningen av %1 avbröts.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Värdet som du angav är inte giltigt. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Det finns ännu inga tidigare versioner av filen. Ändra filen och låt den synkroniseras, så skapas en.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Initierar Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausa synkroniseringen</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Sammanslagningsläge</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere är redo.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Det gick inte att hämta den här versionen. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Verkställer inställningarna...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Filer som utesluts från synkronisering</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Quillmere-tjänsten är avstängd på servern. Be serveradministratören att slå på den.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Välj delade mappar att synkronisera</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Ta bort</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Be serveradministratören att uppgradera Quillmere på servern om du vill använda selektiv synkronisering.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Inga inställningar har ändrats.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Filer som används</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Reparerar fel i installationen av [ProductName] genom att återställa filer och genvägar som saknas eller är skadade.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Uteslutna filnamnstillägg</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Synkroniseringen är pausad.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Välkommen tillbaka till installationsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Disken som innehåller synkroniseringsmappen är inte monterad. Montera disken och återuppta sedan synkroniseringen. Mappen visas under Synkroniseringsuppgifter.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Disken som innehåller synkroniseringsmappen är full.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Proxyserverns adress</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorera</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Det finns redan en mapp med det här namnet på den här datorn. Vill du slå samman dess filer med filerna på servern?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere håller dina filer synkroniserade mellan dina datorer och din server.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ändra de installerade funktionerna</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Välkommen till Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparera</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Uppgraderar Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Ange ett domännamn, en IP-adress eller ett server-ID.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Det gick inte att skapa en delningslänk för den här filen. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Filer som synkroniseras: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Anslut igen</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Dina filer, synkroniserade överallt</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Installationsguiden genomför ändringarna som du har valt.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemets standardspråk</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Mapparna och filerna som du avmarkerade tas bort från den här datorn. De finns kvar på servern.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Installationsprogrammet har genomfört alla ändringar som du valde. Klicka på Slutför för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klicka på Ta bort för att ta bort [ProductName] från datorn. Klicka på Tillbaka för att granska dina val eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Inget utrymme kvar</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Frånkopplad</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Du har använt allt ditt utrymme på servern.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Vill du koppla från servern?\nDina filer finns kvar på den här datorn och på servern, men de synkroniseras inte längre.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Ett problem uppstod i relätjänsten. Försök igen senare eller anslut till servern med dess IP-adress.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Uteslutna filnamn</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradress</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>På</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Disken som innehåller synkroniseringsmappen är full. Frigör utrymme på den för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mappar att synkronisera</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Välj synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Anslutningsinställningar</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Du har använt allt ditt utrymme på servern. Ta bort filer som du inte behöver eller be serveradministratören om mer utrymme.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>När du har startat [ProductName] hittar du programmet i systemfältet.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Låt programmen vara öppna och starta om datorn senare</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Använd följande proxyserver</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Den här filen har ändrats både på den här datorn och på servern. Båda kopiorna finns i samma mapp under olika namn. Jämför dem och behåll den som du behöver.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Alla dina filer på alla datorer, lagrade på din egen server</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Följande program använder filer som installationsprogrammet behöver uppdatera. Stäng dem och klicka sedan på Försök igen. Klicka på Ignorera för att fortsätta utan att stänga dem. Klicka på Avsluta för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Servern kan inte nås. Kontrollera nätverksanslutningen och serveradressen och försök igen.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Filer som matchar en post i listan synkroniseras inte.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Redigera anslutning...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Följande program använder filer som installationsprogrammet behöver uppdatera. Välj om installationsprogrammet ska stänga dem. Om de förblir öppna måste du starta om datorn för att slutföra ändringarna.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Installationsguiden är redo att påbörja reparationen.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Öppna Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Starta om %1 för att verkställa de nya språkinställningarna.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Visa ikonöverlägg på uteslutna filer</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Gränsen för antalet synkroniserade delade mappar är nådd: %1. Sluta synkronisera en delad mapp innan du lägger till en annan.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Vill du ta bort synkroniseringsuppgiften?\nDess filer finns kvar på den här datorn och på servern, men de synkroniseras inte längre.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Startar Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Det gick inte att uppgradera Quillmere. Din tidigare version finns kvar. Starta om datorn och försök igen. Mer information finns i ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Uteslut namn som börjar med en punkt</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Det finns inget ledigt diskutrymme på servern. Be serveradministratören att frigöra utrymme.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Licensavtal</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 har hämtats.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Det gick inte att lista versionerna av den här filen. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Ansluten till servern.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Installationsprogrammet för [ProductName] är klart</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Använd ingen proxyserver</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delade mappen hittades inte</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nästa</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Det gick inte att hämta %1. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Bevakar filändringar...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Inställningar för Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Det gick inte att ta bort delningslänken. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Serverns certifikat kunde inte verifieras: det kan ha upphört att gälla, tillhöra en annan server eller komma från en okänd utfärdare. Be serveradministratören att kontrollera certifikatet.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Det här är inte servern som den här datorn var ansluten till. Kontrollera serveradressen eller anslut igen.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] har inga funktioner som kan ändras separat.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Proxyserverns adress eller port saknas. Ange båda och försök igen.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Användarnamnet saknas. Ange ett användarnamn.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Ta bort länk</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Jag &amp;godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Uppdaterad: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Hantera anslutningar</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Anslut till en annan server...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Visa ikonöverlägg</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Gör ändringar i [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Tjänsten är avstängd</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisera</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Vill du sluta synkronisera den här delade mappen?\nFilerna som redan finns på den här datorn behålls.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installera</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Filer att utesluta</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Jag godkänner in&amp;te villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Något gick fel. Försök igen och kontakta serveradministratören om problemet kvarstår. Mer information finns i ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ikoner i systemfältet</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Mappen är skrivskyddad. Välj en mapp som du kan skriva till.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Till&amp;baka</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Du är inte inloggad som administratör, så Quillmere kanske inte installeras fullständigt. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Använd ikonen i systemfältet när du vill se synkroniseringsstatusen eller ändra inställningarna.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Delningslänken har skapats</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt. Kontrollera båda och försök igen.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Redo att reparera [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Den delade mappen %1 är nu tillgänglig. Klicka här för att synkronisera den.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Här kan du välja vilka funktioner som ska installeras.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Mappen är en monteringspunkt</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Välj en annan mapp...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast hämtning</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Reparera</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Största filstorlek</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Ange serveradressen och det konto som du använder på servern.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>En annan server hittades på serveradressen.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Ansluter till servern...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Skapa delningslänk</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Servern godtog inte användarnamnet eller lösenordet. Redigera anslutningen och ange dem igen.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nyligen uppdaterade filer</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Byt mapp...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Hämtar...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Filen är låst</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Synkroniserar filer...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Redo att installera [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Kontrollerar användarnamnet och lösenordet...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Vänta medan installationsguiden gör ändringarna i [ProductName]. Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>Server-ID:t är inte giltigt. Kontrollera server-ID:t och försök igen.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Öppna synkroniseringsmappen</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Vid dubbelklick på ikonen i systemfältet</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Det gick inte att slå på synkroniseringen för den här delade mappen. Kontrollera dina behörigheter på servern och försök igen.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Fildelning via relä är avstängd på servern. Be serveradministratören att slå på den.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Återuppta synkroniseringen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Delningslänken har kopierats till Urklipp.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Den lokala synkroniseringsmappen hittades inte. Återställ mappen eller välj en annan mapp. Sökvägen visas under Synkroniseringsuppgifter.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Uppgradera Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Lägg till uppgift...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Den delade mappen är inte monterad på servern. Be serveradministratören att montera den. Namnet visas under Delade mappar.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Servern skickade ett oväntat svar. Uppgradera Quillmere på den här datorn och be serveradministratören att uppgradera Quillmere på servern. Mer information finns i ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveröversikt</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Synkroniseringen stoppades på grund av ett problem. Klicka här för mer information.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Ange en storlek på högst %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerar filer...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Försöker synkronisera...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klicka på Installera för att påbörja installationen av [ProductName]. Klicka på Tillbaka för att granska dina val eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Installationsprogrammet för [ProductName] avbröts</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Mappen är inte tom. Slå samman dess filer med filerna på servern eller välj en annan mapp.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Den här mappen indexeras. Filerna i den visas när indexeringen är klar.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå samman</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Du kan öppna filerna i den här delade mappen, men ändringar som du gör laddas inte upp.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Den här mappen synkroniseras redan med en annan delad mapp. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Det finns inget ledigt diskutrymme på servern.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relä via server-ID</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Välj vad du vill göra.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Installationsprogrammet för [ProductName] slutfördes inte</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere körs redan.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Starta Quillmere när jag loggar in på den här datorn</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Alla filer från båda mapparna behålls. Om två versioner av en fil skiljer sig åt behålls båda under olika namn.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparera installationen</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synkroniseringen är på</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kunde inte startas. Starta om datorn och starta sedan Quillmere igen. Mer information finns i ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Vill du avbryta installationsprogrammet för [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Ändra, reparera eller ta bort [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere är konfigurerat</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Bläddra bland versioner...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Än&amp;dra</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Den här datorn är frånkopplad från servern. Anslut igen för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Identifierar...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatvarning</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Relätjänsten kan inte nås. Kontrollera internetanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Tar bort [ProductName] från datorn.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Hämtar %1...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slutför</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Du avbröt installationsprogrammet, och datorn har inte ändrats.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Portnumret är inte giltigt. Ange ett tal från 1 till 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere kan inte bevaka ändringar på en nätverksdisk. Välj en mapp på en lokal disk.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Ta bort installationen</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Disken på servern som innehåller den här mappen är inte monterad. Be serveradministratören att montera den. Mappen visas under Synkroniseringsuppgifter.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Den här versionen av Quillmere är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere på den här datorn är för gammalt för att fungera med servern. Uppgradera Quillmere och försök igen.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere på servern är för gammalt för att fungera med den här datorn.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Av</translation>
    </message>
</context>
</TS>
