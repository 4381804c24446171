<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Le damos la bienvenida al asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Iniciar [ProductName] ahora</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos los archivos están actualizados.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Procesando...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>El asistente de instalación está listo para comenzar la instalación.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexión</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>La base de datos local está dañada. Desconecte este equipo del servidor y vuelva a conectarlo para reconstruir la base de datos. Los detalles están en «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Cerrar las aplicaciones y reiniciarlas después de la instalación</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>La carpeta es un punto de montaje. Elija una carpeta que no lo sea.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Listo para desinstalar [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Se ha reemplazado el servidor. Haga clic aquí para volver a conectar este equipo.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Archivos que se están sincronizando: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>El asistente de instalación permite cambiar, reparar o desinstalar [ProductName]. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista de exclusión</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>¿Borrar este enlace compartido?\nLas personas que tengan el enlace ya no podrán abrir el archivo.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere en este equipo es demasiado antiguo para funcionar con el servidor.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>El certificado del servidor no es de confianza: puede haber caducado, pertenecer a otro servidor o proceder de un emisor desconocido. Otras personas podrían leer los datos que envíe. ¿Continuar?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Acerca de Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Compruebe los ajustes que se muestran a continuación y haga clic en «Hecho».</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>El asistente de instalación está listo para comenzar la desinstalación.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Este equipo ya está conectado a este servidor. Edite la conexión existente o introduzca otro servidor.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Se perdió la conexión con el servidor. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>No se pudo verificar el certificado del servidor.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar un icono en blanco y negro en la bandeja del sistema</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Los archivos de esta carpeta se sincronizarán con el servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>El servidor proxy requiere autenticación</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere en el servidor es demasiado antiguo para funcionar con este equipo. Pida al administrador del servidor que lo actualice.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Puede volver a ejecutar el programa de instalación en cualquier momento. Haga clic en «Finalizar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>La conexión con el servidor es inestable.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Ya hay instalada una versión más reciente de Quillmere. Para instalar esta versión, desinstale primero la más reciente.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Haga clic en «Reparar» para reparar la instalación de [ProductName]. Haga clic en «Atrás» para revisar las opciones elegidas o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Hay ajustes sin guardar. ¿Guardarlos?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Iconos superpuestos en los archivos</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Otro programa de sincronización ya usa esta carpeta. Elija otra carpeta para evitar conflictos.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versión incompatible</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambiar carpeta de sincronización</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Introduzca un nombre de archivo completo, sin la ruta de la carpeta; por ejemplo, «thumbs.db».</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]El programa de instalación se detuvo debido a un error. Se deshicieron los cambios que había realizado.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>El asistente de instalación instalará [ProductName] en el equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronización</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lea detenidamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Usar una conexión cifrada (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Algunos archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Hay una nueva versión de Quillmere disponible. Haga clic aquí para actualizar.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Se canceló la descarga de «%1».</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>El valor introducido no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Este archivo aún no tiene versiones anteriores. Modifíquelo y deje que se sincronice para crear una.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Inicializando Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar la sincronización</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinación</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere está listo.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>No se pudo descargar esta versión. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando los ajustes...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Archivos excluidos de la sincronización</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>El servicio de Quillmere está desactivado en el servidor. Pida al administrador del servidor que lo active.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Elija las carpetas compartidas que desea sincronizar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Desinstalar</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Para usar la sincronización selectiva, pida al administrador del servidor que actualice Quillmere en el servidor.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>No se ha cambiado ningún ajuste.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Archivos en uso</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Corrige los errores de la instalación de [ProductName] restaurando los archivos y accesos directos que faltan o están dañados.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Extensiones de archivo excluidas</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>La sincronización está en pausa.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Le damos de nuevo la bienvenida al asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>La unidad que contiene la carpeta de sincronización no está montada. Monte la unidad y reanude la sincronización. La carpeta se indica en «Tareas de sincronización».</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>La unidad que contiene la carpeta de sincronización está llena.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Dirección del servidor proxy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Ya existe una carpeta con este nombre en este equipo. ¿Combinar sus archivos con los del servidor?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere mantiene sus archivos sincronizados entre sus equipos y su servidor.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambiar las características instaladas</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Le damos la bienvenida a Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Actualizando Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Introduzca un nombre de dominio, una dirección IP o un ID de servidor.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>No se pudo crear un enlace compartido para este archivo. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Archivos que se están sincronizando: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Volver a conectar</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Sus archivos, sincronizados en todas partes</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>El asistente de instalación está realizando los cambios elegidos.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Las carpetas y los archivos que desmarcó se eliminarán de este equipo. Se conservarán en el servidor.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>El programa de instalación realizó todos los cambios elegidos. Haga clic en «Finalizar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Haga clic en «Desinstalar» para desinstalar [ProductName] del equipo. Haga clic en «Atrás» para revisar las opciones elegidas o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>No queda espacio</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Su espacio en el servidor está agotado.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>¿Desconectar este equipo del servidor?\nSus archivos se conservarán en este equipo y en el servidor, pero dejarán de sincronizarse.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>El servicio de retransmisión tiene un problema. Inténtelo de nuevo más tarde o conéctese al servidor mediante su dirección IP.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID del servidor</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nombres de archivo excluidos</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>La unidad que contiene la carpeta de sincronización está llena. Libere espacio en la unidad para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Carpetas que se sincronizarán</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Elija la carpeta de sincronización</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Ajustes de conexión</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Su espacio en el servidor está agotado. Borre los archivos que no necesite o pida más espacio al administrador del servidor.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Después de iniciar [ProductName], podrá encontrarlo en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Dejar abiertas las aplicaciones y reiniciar el equipo más tarde</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Usar el siguiente servidor proxy</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Este archivo se modificó en este equipo y en el servidor. Ambas copias están en la misma carpeta con nombres distintos. Compárelas y conserve la que necesite.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Todos sus archivos en todos sus equipos, guardados en su propio servidor</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Las siguientes aplicaciones usan archivos que el programa de instalación debe actualizar. Ciérrelas y haga clic en «Reintentar». Para continuar sin cerrarlas, haga clic en «Ignorar». Para salir del programa de instalación, haga clic en «Salir».</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>No se puede acceder al servidor. Compruebe la conexión de red y la dirección del servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Carpeta de sincronización local</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Los archivos que coinciden con una entrada de esta lista no se sincronizan.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Editar conexión...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Las siguientes aplicaciones usan archivos que el programa de instalación debe actualizar. Elija si deben cerrarse automáticamente. Si quedan abiertas, deberá reiniciar el equipo para finalizar la instalación.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>El asistente de instalación está listo para comenzar la reparación.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Abrir Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar los nuevos ajustes de idioma.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Mostrar iconos superpuestos en los archivos excluidos</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Se ha alcanzado el límite de carpetas compartidas sincronizadas: %1. Deje de sincronizar una carpeta compartida antes de añadir otra.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>¿Eliminar esta tarea de sincronización?\nSus archivos se conservarán en este equipo y en el servidor, pero dejarán de sincronizarse.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Iniciando Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>No se pudo actualizar Quillmere. Se conservó la versión anterior. Reinicie el equipo e inténtelo de nuevo. Los detalles están en «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Excluir los nombres que comienzan con un punto</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>El servidor no tiene espacio libre en disco. Pida al administrador del servidor que libere espacio.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Contrato de licencia</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Se descargó el archivo «%1».</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>No se pudo obtener la lista de versiones de este archivo. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Se estableció la conexión con el servidor.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}El programa de instalación de [ProductName] ha terminado</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>No usar un servidor proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Carpeta compartida no encontrada</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>No se pudo descargar el archivo «%1». Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Supervisando los cambios en los archivos...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Ajustes de Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>No se pudo borrar el enlace compartido. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>No se pudo verificar el certificado del servidor: puede haber caducado, pertenecer a otro servidor o proceder de un emisor desconocido. Pida al administrador del servidor que revise el certificado.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Este no es el servidor al que estaba conectado este equipo. Compruebe la dirección del servidor o vuelva a conectar este equipo.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] no tiene características que se puedan cambiar por separado.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Falta la dirección o el puerto del servidor proxy. Introduzca ambos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Falta el nombre de usuario. Introduzca un nombre de usuario.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Borrar enlace</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;cepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gestionar conexiones</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Conectar a otro servidor...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Mostrar iconos superpuestos</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Realizando cambios en [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Servicio desactivado</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>¿Dejar de sincronizar esta carpeta compartida?\nLos archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Archivos que se excluirán</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Detalles del estado</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Se produjo un problema. Inténtelo de nuevo y, si el problema continúa, póngase en contacto con el administrador del servidor. Los detalles están en «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Iconos de la bandeja del sistema</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>La carpeta es de solo lectura. Elija una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ajustes del proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>No ha iniciado sesión como administrador, por lo que es posible que Quillmere no se instale por completo. ¿Continuar?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Use el icono de la bandeja del sistema en cualquier momento para ver el estado de la sincronización o cambiar los ajustes.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Enlace compartido creado</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Compruebe ambos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>La carpeta compartida «%1» ya está disponible. Haga clic aquí para sincronizarla.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Información de conexión</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Permite elegir las características que se instalan.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de carpeta</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>La carpeta es un punto de montaje</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Elegir otra carpeta...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Reparar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Desinstalar</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Introduzca la dirección del servidor y la cuenta que usa en él.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>En la dirección del servidor se encontró otro servidor.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Conectando al servidor...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Crear enlace compartido</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>El servidor no aceptó el nombre de usuario o la contraseña. Edite la conexión y vuelva a introducirlos.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar los ajustes de proxy del sistema</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Cambiar carpeta...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Archivo bloqueado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Sincronizando archivos...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Listo para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Comprobando el nombre de usuario y la contraseña...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Espere mientras el asistente de instalación realiza los cambios en [ProductName]. Esta operación puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestionar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>El ID del servidor no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Abrir carpeta de sincronización</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al hacer doble clic en el icono de la bandeja del sistema</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>No se pudo activar la sincronización de esta carpeta compartida. Compruebe sus permisos en el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>El uso compartido de archivos mediante retransmisión está desactivado en el servidor. Pida al administrador del servidor que lo active.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reanudar la sincronización</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>El enlace compartido se copió en el portapapeles.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>No se encontró la carpeta de sincronización local. Restáurela o elija otra carpeta. La ruta se indica en «Tareas de sincronización».</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Actualización de Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Añadir tarea...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>La carpeta compartida no está montada en el servidor. Pida al administrador del servidor que la monte. El nombre de la carpeta se indica en «Carpetas compartidas».</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>El servidor envió una respuesta inesperada. Actualice Quillmere en este equipo y pida al administrador del servidor que lo actualice en el servidor. Los detalles están en «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Información general del servidor</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>La sincronización se detuvo debido a un problema. Haga clic aquí para ver los detalles.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Introduzca un tamaño de %1&#xa0;MB como máximo.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Comprobando archivos...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Intentando sincronizar...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Haga clic en «Instalar» para comenzar la instalación de [ProductName]. Haga clic en «Atrás» para revisar las opciones elegidas o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}El programa de instalación de [ProductName] se canceló</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>La carpeta no está vacía. Combine sus archivos con los del servidor o elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Esta carpeta se está indexando. Sus archivos aparecerán cuando termine la indexación.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Puede abrir los archivos de esta carpeta compartida, pero los cambios que haga no se subirán al servidor.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ajustes de red</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Esta carpeta ya está sincronizada con otra carpeta compartida. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>El servidor no tiene espacio libre en disco.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Retransmisión por ID de servidor</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Elija lo que desea hacer.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}El programa de instalación de [ProductName] no terminó</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Ejecutar Quillmere al iniciar sesión en este equipo</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Se conservan todos los archivos de ambas carpetas. Si dos versiones de un archivo difieren, se conservan ambas con nombres distintos.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar la instalación</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Sincronización activada</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>No se pudo iniciar Quillmere. Reinicie el equipo y vuelva a iniciar Quillmere. Los detalles están en «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>¿Cancelar el programa de instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Cambiar, reparar o desinstalar [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere está configurado</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ajustes avanzados</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Explorar versiones...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Cambiar</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Este equipo está desconectado del servidor. Vuelva a conectarlo para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Detectando...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Advertencia de certificado</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>No se puede acceder al servicio de retransmisión. Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Desinstala [ProductName] del equipo.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Descargando «%1»...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Se canceló el programa de instalación y no se realizaron cambios en el equipo.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>El número de puerto no es válido. Introduzca un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere no puede supervisar los cambios en una unidad de red. Elija una carpeta en una unidad local.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Desinstalar el programa</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>En el servidor, la unidad que contiene esta carpeta no está montada. Pida al administrador del servidor que monte la unidad. La carpeta se indica en «Tareas de sincronización».</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Esta versión de Quillmere ya está instalada. ¿Instalarla de nuevo?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere en este equipo es demasiado antiguo para funcionar con el servidor. Actualícelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere en el servidor es demasiado antiguo para funcionar con este equipo.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Desactivado</translation>
    </message>
</context>
</TS>
